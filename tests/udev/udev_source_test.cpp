// Bridges that come, go, and come again.
#include "tests/support/no_more_files.h"
#include "tests/udev/heard_source.h"
#include "tests/udev/mock_bus.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

using told = std::vector<std::string>;

class UdevSource : public testing::Test {
protected:
    UdevSource() { bus_.add(device_); }

    // The kernel's tree has it, and udev tells of its node.
    void plug(const mock_bridge& bridge) {
        bus_.add_scsi_device(at_, bridge);
        bus_.add_node(at_, bridge);
        bus_.tell("add", at_, bridge);
        source_.process();
    }
    void tell(const std::string& action, const mock_bridge& bridge) {
        bus_.tell(action, at_, bridge);
        source_.process();
    }
    void unplug(const mock_bridge& bridge) {
        tell("remove", bridge);
        take_out(bridge);
    }
    void take_out(const mock_bridge& bridge) { bus_.take_out(at_, bridge); }

    mock_bus bus_;
    mock_usb_device device_;
    const std::string at_ = device_.path();
    mock_bridge bridge_;
    heard_source source_;
};

TEST_F(UdevSource, WhatIsThereAtTheStartIsTold) {
    bus_.add_scsi_device(at_, bridge_);
    bus_.add_node(at_, bridge_);
    ASSERT_TRUE(source_.listen());
    EXPECT_EQ(source_.told, told{"+1"});
}

TEST_F(UdevSource, WhatComesBetweenListeningAndLookingIsToldOnce) {
    bus_.add_scsi_device(at_, bridge_);
    bus_.add_node(at_, bridge_);
    source_.listen();
    tell("add", bridge_);
    tell("change", bridge_);
    EXPECT_EQ(source_.told, told{"+1"});
}

TEST_F(UdevSource, ABridgeArrivesWithItsGenericNodeAndNotBefore) {
    source_.listen();
    bus_.add_scsi_device(at_, bridge_);
    source_.process();
    EXPECT_EQ(source_.told, told{});
    bus_.add_node(at_, bridge_);
    tell("add", bridge_);
    EXPECT_EQ(source_.told, told{"+1"});
}

TEST_F(UdevSource, ABridgeThatTheRuleChoosesLaterArrivesThen) {
    source_.listen();
    bridge_.chosen = false;
    plug(bridge_);
    EXPECT_EQ(source_.told, told{});
    bus_.choose(at_, bridge_);
    tell("change", bridge_);
    EXPECT_EQ(source_.told, told{"+1"});
}

TEST_F(UdevSource, ADepartureIsToldWithTheIdentityOfTheArrivalWhenNothingOfItIsLeft) {
    source_.listen();
    plug(bridge_);
    bus_.set_attribute(at_, "serial", "");
    unplug(bridge_);
    EXPECT_EQ(source_.told, (told{"+1", "-1"}));
    EXPECT_EQ(source_.bridges[0].serial, "KR-0042");
}

TEST_F(UdevSource, ABridgeThatIsPluggedInAgainHasAnotherHandle) {
    source_.listen();
    plug(bridge_);
    unplug(bridge_);
    ++source_.arrival;
    plug(bridge_);
    EXPECT_EQ(source_.told, (told{"+1", "-1", "+2"}));
    EXPECT_NE(source_.bridges[0].handle, source_.bridges[1].handle);
}

TEST_F(UdevSource, AnotherArrivalAtTheSamePlaceEndsTheFormer) {
    source_.listen();
    plug(bridge_);
    ++source_.arrival;
    tell("add", bridge_);
    EXPECT_EQ(source_.told, (told{"+1", "-1", "+2"}));
}

TEST_F(UdevSource, TwoUnitsOfOneDeviceAreToldOnce) {
    mock_bridge second = bridge_;
    second.lun = "1";
    second.sg = "1";
    source_.listen();
    plug(bridge_);
    plug(second);
    tell("remove", bridge_);
    tell("remove", second);
    EXPECT_EQ(source_.told, (told{"+1", "(+)2", "-1", "-2"}));
    EXPECT_EQ(source_.bridges[0].location_id, source_.bridges[1].location_id);
    EXPECT_NE(source_.bridges[0].handle, source_.bridges[1].handle);
}

TEST_F(UdevSource, ADepartureOfWhatNeverArrivedIsNotTold) {
    source_.listen();
    bridge_.chosen = false;
    plug(bridge_);
    unplug(bridge_);
    EXPECT_EQ(source_.told, told{});
}

TEST_F(UdevSource, ABridgeThatHasGoneBeforeItsArrivalIsReadIsNotTold) {
    source_.listen();
    bus_.add_scsi_device(at_, bridge_);
    bus_.add_node(at_, bridge_);
    bus_.tell("add", at_, bridge_);
    bus_.tell("remove", at_, bridge_);
    take_out(bridge_);
    source_.process();
    EXPECT_EQ(source_.told, told{});
}

TEST_F(UdevSource, OtherKindsOfScsiDevicesAreNoBridges) {
    source_.listen();
    bridge_.type = "5";
    plug(bridge_);
    EXPECT_EQ(source_.told, told{});
}

TEST_F(UdevSource, AScsiDeviceElsewhereThanFourLevelsBelowABusDeviceIsNoBridge) {
    source_.listen();
    const std::string deeper = mock_bus::interface_path(at_);
    bus_.add_interface(deeper);
    bus_.add_scsi_device(deeper, bridge_);
    bus_.add_node(deeper, bridge_);
    bus_.tell("add", deeper, bridge_);
    source_.process();
    EXPECT_EQ(source_.told, told{});
}

TEST_F(UdevSource, LostEventsAreMadeGoodByOneLookAtEverything) {
    mock_usb_device other;
    other.ports = "2";
    const mock_bridge stays{.host = "8", .sg = "2"};
    const mock_bridge comes{.host = "7", .sg = "1"};
    bus_.add(other);
    bus_.add_scsi_device(other.path(), stays);
    bus_.add_node(other.path(), stays);
    source_.listen();
    plug(bridge_);
    ASSERT_EQ(source_.told, (told{"+1", "+2"}));

    source_.how = hearing::loses_events;
    source_.looks = 0;
    bus_.tell("remove", at_, bridge_);
    take_out(bridge_);
    plug(comes);
    EXPECT_EQ(source_.told, (told{"+1", "+2", "-2", "+3"}));
    EXPECT_EQ(source_.looks, 2);
}

TEST_F(UdevSource, ABridgeThatLeftAndCameBackWhileEventsWereLostArrivesAnew) {
    source_.listen();
    plug(bridge_);
    source_.how = hearing::loses_events;
    ++source_.arrival;
    tell("change", bridge_);
    EXPECT_EQ(source_.told, (told{"+1", "-1", "+2"}));
}

TEST_F(UdevSource, ALookAtEverythingThatFailsChangesNothingAndIsMadeAgain) {
    source_.listen();
    plug(bridge_);
    EXPECT_EQ(source_.poll_timeout(), -1);
    source_.how = hearing::loses_events;
    bus_.tell("change", at_, bridge_);
    {
        const no_more_files trouble;
        EXPECT_TRUE(source_.process());
    }
    EXPECT_EQ(source_.told, told{"+1"});
    EXPECT_EQ(source_.poll_timeout(), 1000);
    take_out(bridge_);
    EXPECT_TRUE(source_.process());
    EXPECT_EQ(source_.told, (told{"+1", "-1"}));
    EXPECT_EQ(source_.poll_timeout(), -1);
}

TEST_F(UdevSource, WhenNothingCanBeReadAnyMoreEveryBridgeDepartsAndOneLineSaysSo) {
    source_.listen();
    plug(bridge_);
    source_.how = hearing::broken;
    testing::internal::CaptureStderr();
    EXPECT_FALSE(source_.process());
    EXPECT_FALSE(source_.process());
    const std::string line = testing::internal::GetCapturedStderr();
    EXPECT_EQ(source_.told, (told{"+1", "-1"}));
    EXPECT_EQ(line.find("udev is not heard any more"), 0U);
    EXPECT_EQ(line.find('\n'), line.size() - 1);
}

// Says why there is nothing to listen to.
class deaf_events final : public node_events {
public:
    bool open() override {
        errno = EPROTONOSUPPORT;
        return false;
    }
    int descriptor() const override { return -1; }
    std::optional<node_event> next() override { return std::nullopt; }
};

TEST(UdevSourceAlone, WithoutUdevThereIsOneLineAndNothingToListenTo) {
    udev_source source(std::make_unique<deaf_events>(), sysfs_arrival_number);
    testing::internal::CaptureStderr();
    EXPECT_FALSE(source.listen({}));
    const std::string line = testing::internal::GetCapturedStderr();
    EXPECT_NE(line.find("Protocol not supported"), std::string::npos) << line;
    EXPECT_EQ(line.find('\n'), line.size() - 1);
}

TEST(UdevSourceAlone, AFolderThatHasGoneHasNoArrivalNumber) {
    EXPECT_NE(sysfs_arrival_number("/proc"), 0U);
    EXPECT_EQ(sysfs_arrival_number("/sys/nothing/of/that/name"), 0U);
}

TEST(UdevEvents, WhatHasNotComeIsNotWaitedFor) {
    const mock_bus bus;
    udev_events events;
    ASSERT_TRUE(events.open());
    EXPECT_FALSE(events.next());
}

TEST(UdevEvents, AFailureToReadCountsAsEventsLost) {
    const mock_bus bus;
    udev_events events;
    ASSERT_TRUE(events.open());
    const int no_socket = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    ASSERT_GE(::dup2(no_socket, events.descriptor()), 0);
    ::close(no_socket);
    const std::optional<node_event> event = events.next();
    ASSERT_TRUE(event);
    EXPECT_EQ(event->what, node_event::kind::lost);
}

} // namespace
