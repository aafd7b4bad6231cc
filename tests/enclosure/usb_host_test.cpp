// Which enclosures are exported, and on what port.
#include "enclosure/usb_host.h"

#include "enclosure/problem.h"

#include "tests/enclosure/builders.h"
#include "tests/enclosure/quiet_watcher.h"
#include "tests/enclosure/scripted_owner.h"
#include "tests/enclosure/temporary_folder.h"
#include "tests/enclosure/usbip_client.h"

#include <gtest/gtest.h>

namespace enclosure {
namespace {

class UsbHost : public testing::Test {
protected:
    UsbHost() {
        on_.add_enclosure(usb_settings("box"));
        on_.add_enclosure(usb_settings("other"));
        cabinet_settings wire = usb_settings("wire");
        wire.bus = bus_kind::firewire;
        on_.add_enclosure(wire);
    }

    bool listens(std::uint16_t port) {
        try {
            usbip_client client(port);
            return true;
        } catch (const std::runtime_error&) {
            return false;
        }
    }

    temporary_folder folder_;
    quiet_watcher watcher_;
    desk on_{folder_.path(), watcher_};
    scripted_owner owners_;
    usb_host host_{on_, owners_, [](const std::string&) {}};
};

TEST_F(UsbHost, ListensOnlyWhileSomethingIsExported) {
    EXPECT_EQ(host_.port(), std::nullopt);
    const usb_host::place first = host_.begin("box", 0, moment{0});
    EXPECT_EQ(first.busid, "1-1");
    const usb_host::place second = host_.begin("other", first.port, moment{0});
    EXPECT_EQ(second.busid, "1-2");
    EXPECT_EQ(second.port, first.port);
    host_.end("box");
    EXPECT_TRUE(listens(first.port));
    EXPECT_EQ(host_.begin("box", 0, moment{0}).busid, "1-1") << "the number is free again";
    host_.end("box");
    host_.end("other");
    EXPECT_EQ(host_.port(), std::nullopt);
    EXPECT_FALSE(listens(first.port));
}

TEST_F(UsbHost, UnpluggingEndsAnExport) {
    const std::uint16_t port = host_.begin("box", 0, moment{0}).port;
    on_.unplug("box");
    host_.serve(moment{0});
    EXPECT_FALSE(listens(port));
}

TEST_F(UsbHost, AnExportIsNoBridgeOfTheDesk) {
    host_.begin("box", 0, moment{0});
    EXPECT_TRUE(on_.bridges().empty());
    EXPECT_TRUE(on_.enclosure("box").handle());
    on_.warm_boot("box", moment{0});
    on_.advance(std::chrono::seconds(1));
    EXPECT_TRUE(on_.enclosure("box").handle());
    EXPECT_TRUE(on_.bridges().empty()) << "nor after a restart";
    host_.end("box");
    on_.plug("box", moment{0});
    EXPECT_EQ(on_.bridges().size(), 1U);
}

TEST_F(UsbHost, WhatCannotBeExportedLeavesNoSocketBehind) {
    on_.plug("box", moment{0});
    EXPECT_THROW(host_.begin("box", 0, moment{0}), problem);
    EXPECT_THROW(host_.begin("wire", 0, moment{0}), problem);
    EXPECT_THROW(host_.begin("nix", 0, moment{0}), problem);
    EXPECT_THROW(host_.end("box"), problem);
    EXPECT_EQ(host_.port(), std::nullopt);
}

TEST_F(UsbHost, AllExportsShareOnePort) {
    const std::uint16_t port = host_.begin("box", 0, moment{0}).port;
    const auto another = static_cast<std::uint16_t>(port ^ 1U);
    EXPECT_THROW(host_.begin("other", another, moment{0}), problem);
    EXPECT_FALSE(on_.enclosure("other").plugged());
}

} // namespace
} // namespace enclosure
