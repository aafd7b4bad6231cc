// Real sockets: who is let in, and what one client can do to another.
#include "enclosure/usbip_server.h"

#include "enclosure/problem.h"

#include "tests/enclosure/exported_desk.h"
#include "tests/enclosure/scripted_owner.h"
#include "tests/enclosure/usbip_client.h"
#include "tests/support/no_more_files.h"

#include <gtest/gtest.h>

namespace enclosure {
namespace {

using namespace usb_builders;

class UsbipServer : public testing::Test {
protected:
    // Serves what comes, until `other` can be read at the latest.
    void serve(pollfd& other) {
        std::vector<pollfd> watched = {other};
        server_.watch(watched);
        const bool at_once = server_.next_event() <= desk_.now;
        ::poll(watched.data(), watched.size(), at_once ? 0 : client_patience);
        other = watched.front();
        desk_.on.advance(desk_.now);
        server_.serve(desk_.now);
    }

    void serve() {
        pollfd nobody{-1, 0, 0};
        serve(nobody);
    }

    std::unique_ptr<usbip_client> client() {
        return std::make_unique<usbip_client>(server_.port(), [this](pollfd& own) { serve(own); });
    }

    exported_desk desk_;
    scripted_owner owners_;
    std::vector<std::string> lines_;
    usbip_server server_{desk_.exports, owners_, 0,
                         [this](const std::string& line) { lines_.push_back(line); }};
};

TEST_F(UsbipServer, ServesSeveralClients) {
    const auto first = client();
    const auto second = client();
    EXPECT_EQ(first->ask(import_request("1-1"), 320).size(), 320U);
    EXPECT_EQ(second->ask(import_request("1-1"), 8), (bytes{1, 0x11, 0, 3, 0, 0, 0, 2}));
    EXPECT_TRUE(second->ends());
    EXPECT_EQ(first->ask(control_in(1, {0xA1, 0xFE, 0, 0, 0, 0, 1, 0}, 1), 49).size(), 49U);
    EXPECT_TRUE(lines_.empty());
}

TEST_F(UsbipServer, AClientThatHangsUpGivesTheDeviceBack) {
    auto first = client();
    EXPECT_EQ(first->ask(import_request("1-1"), 320).size(), 320U);
    first.reset();
    while (server_.clients() > 0) {
        serve();
    }
    EXPECT_EQ(client()->ask(import_request("1-1"), 320).size(), 320U);
}

TEST_F(UsbipServer, AMalformedStreamEndsItsOwnConnectionWithOneLine) {
    const auto good = client();
    const auto bad = client();
    good->ask(import_request("1-1"), 320);
    bad->say(bytes(8, 'x'));
    EXPECT_TRUE(bad->ends());
    ASSERT_EQ(lines_.size(), 1U);
    EXPECT_NE(lines_[0].find("USB/IP"), std::string::npos);
    EXPECT_EQ(good->ask(control_in(1, {0xA1, 0xFE, 0, 0, 0, 0, 1, 0}, 1), 49).size(), 49U);
}

TEST_F(UsbipServer, RootIsLetIn) {
    owners_.says = 0;
    EXPECT_EQ(client()->ask(list_request(), 328).size(), 328U);
}

TEST_F(UsbipServer, OtherUsersAreTurnedAway) {
    owners_.says = ::geteuid() + 1;
    EXPECT_TRUE(client()->ends());
    ASSERT_EQ(lines_.size(), 1U);
    EXPECT_NE(lines_[0].find("user " + std::to_string(::geteuid() + 1)), std::string::npos);
}

TEST_F(UsbipServer, WhoCannotBeFoundIsTurnedAway) {
    owners_.says.reset();
    EXPECT_TRUE(client()->ends());
    EXPECT_EQ(lines_.size(), 1U);
}

TEST_F(UsbipServer, AFullHouseLetsTheNextOneWait) {
    std::vector<std::unique_ptr<usbip_client>> guests;
    for (int i = 0; i < 72; ++i) {
        guests.push_back(client());
        serve();
    }
    EXPECT_EQ(server_.clients(), 72U);
    const auto late = client();
    late->say(list_request());
    std::vector<pollfd> watched;
    server_.watch(watched);
    EXPECT_EQ(::poll(watched.data(), watched.size(), 0), 0) << "nobody is waited for";
    guests.clear();
    EXPECT_EQ(late->hear(328).size(), 328U);
}

// The sanitizers open files of their own to look at memory.
#ifndef __SANITIZE_ADDRESS__

TEST_F(UsbipServer, WhoCannotBeTakenKeepsNobodyBusyAndIsTakenLater) {
    const auto late = client();
    late->say(list_request());
    {
        const no_more_files now;
        for (int i = 0; i < 3; ++i) {
            serve();
            std::vector<pollfd> watched;
            server_.watch(watched);
            EXPECT_EQ(::poll(watched.data(), watched.size(), 0), 0) << "nobody is waited for";
            EXPECT_EQ(server_.next_event(), desk_.now + std::chrono::seconds(1));
            desk_.now += std::chrono::seconds(1);
        }
    }
    ASSERT_EQ(lines_.size(), 1U);
    EXPECT_NE(lines_[0].find("Too many open files"), std::string::npos) << lines_[0];
    EXPECT_EQ(late->hear(328).size(), 328U);
    EXPECT_EQ(server_.next_event(), std::nullopt);
}

TEST_F(UsbipServer, WhoCannotBeTakenIsTakenWhenAnotherHasGone) {
    auto first = client();
    EXPECT_EQ(first->ask(import_request("1-1"), 320).size(), 320U);
    const auto late = client();
    late->say(list_request());
    const no_more_files now;
    serve();
    EXPECT_EQ(lines_.size(), 1U);
    first.reset();
    EXPECT_EQ(late->hear(328).size(), 328U);
}

#endif

TEST_F(UsbipServer, APortInUseIsSaidInOneLine) {
    try {
        usbip_server second(desk_.exports, owners_, server_.port(), [](const std::string&) {});
        FAIL() << "two servers on one port";
    } catch (const problem& trouble) {
        const std::string line = trouble.what();
        EXPECT_NE(line.find(std::to_string(server_.port())), std::string::npos) << line;
        EXPECT_NE(line.find("--port"), std::string::npos) << line;
    }
}

TEST_F(UsbipServer, LargeTransfersGoThroughInPieces) {
    const auto one = client();
    one->ask(import_request("1-1"), 320);
    one->ask(bulk_out(1, wrapped(1, 36, true, inquiry)), 48);
    one->say(bulk_out(2, bytes(1U << 20))); // waits until the data have been fetched
    EXPECT_EQ(one->ask(joined({bulk_in(3, 36), bulk_in(4, 13)}), 48 + 36 + 48 + 13).size(), 145U);
    EXPECT_EQ(one->hear(48), submit_reply(2, 0, 1U << 20)) << "taken, though it is no command";
    EXPECT_EQ(one->ask(bulk_in(5, 13), 48), submit_reply(5, -32, 0));
}

} // namespace
} // namespace enclosure
