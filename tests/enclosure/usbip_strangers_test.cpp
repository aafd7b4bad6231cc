// What programs of other users can cost the service: little, however often they come.
#include "enclosure/usbip_server.h"

#include "tests/enclosure/exported_desk.h"
#include "tests/enclosure/usbip_client.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace enclosure {
namespace {

using namespace usb_builders;

class counted_owner final : public peer_owner {
public:
    std::optional<uid_t> owner(const sockaddr_in&, const sockaddr_in&) override {
        ++looks;
        return says;
    }

    uid_t says = ::geteuid() + 1;
    int looks = 0;
};

class UsbipStrangers : public testing::Test {
protected:
    void serve_after(moment time) {
        now_ += time;
        server_.serve(now_);
    }

    exported_desk desk_;
    counted_owner owners_;
    std::vector<std::string> lines_;
    usbip_server server_{desk_.exports, owners_, 0,
                         [this](const std::string& line) { lines_.push_back(line); }};
    moment now_{0};
};

TEST_F(UsbipStrangers, AreNamedInOneLineAMinute) {
    for (int i = 0; i < 600; ++i) {
        const usbip_client stranger(server_.port());
        serve_after(std::chrono::milliseconds(100));
    }
    EXPECT_EQ(owners_.looks, 600);
    EXPECT_EQ(lines_.size(), 1U);
    const usbip_client late(server_.port());
    serve_after(std::chrono::milliseconds(100));
    EXPECT_EQ(lines_.size(), 2U);
}

TEST_F(UsbipStrangers, AreLookedAtTwentyTimesASecondAtMost) {
    const usbip_client first(server_.port());
    const usbip_client second(server_.port());
    serve_after(moment{0});
    serve_after(std::chrono::milliseconds(49));
    EXPECT_EQ(owners_.looks, 1);
    EXPECT_EQ(server_.next_event(), std::chrono::milliseconds(50));
    serve_after(std::chrono::milliseconds(1));
    EXPECT_EQ(owners_.looks, 2);
}

TEST_F(UsbipStrangers, KeepNobodyElseOut) {
    const usbip_client stranger(server_.port());
    serve_after(moment{0});
    owners_.says = ::geteuid();
    usbip_client own(server_.port(), [this](pollfd& one) {
        serve_after(std::chrono::milliseconds(50));
        ::poll(&one, 1, 0);
    });
    EXPECT_EQ(own.ask(list_request(), 328).size(), 328U);
}

} // namespace
} // namespace enclosure
