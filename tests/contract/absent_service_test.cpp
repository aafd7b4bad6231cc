// The access library while the service is not there, or goes.
#include "enclosure/dbus_transport.h"

#include "tests/contract/worlds.h"

#include "tests/enclosure/builders.h"
#include "tests/enclosure/private_bus.h"

#include <gtest/gtest.h>

#include <array>

namespace {

class AbsentService : public testing::Test {
protected:
    std::int32_t count() {
        std::array<std::uint8_t, access_library::list_size> list{};
        std::int32_t found = -5;
        EXPECT_EQ(library_.getDeviceList(list.data(), &found), 0);
        return found;
    }

    std::uint32_t plug_example(host_process& host) {
        host.client().add_enclosure({{"Name", sdbus::Variant(std::string("box"))}});
        return host.client().plug("box");
    }

    linked_library library_;
};

TEST_F(AbsentService, IsAnEmptyDeskAndIsNotStarted) {
    bus_watch bus;
    EXPECT_EQ(count(), 0);
    EXPECT_NE(library_.openConnection(enclosure::first_handle), 0);
    EXPECT_FALSE(bus.service_runs());
}

TEST_F(AbsentService, BridgesAreFoundWhenItComes) {
    EXPECT_EQ(count(), 0);
    host_process host;
    plug_example(host);
    EXPECT_EQ(count(), 1);
}

TEST_F(AbsentService, AKilledServiceTakesItsConnectionsAlong) {
    host_process host;
    const std::uint32_t former = plug_example(host);
    ASSERT_EQ(library_.openConnection(former), 0);
    host.kill();
    std::array<std::uint8_t, 12> status{};
    EXPECT_NE(library_.krGetRebuildStatus(former, status.data(), 12), 0);
    EXPECT_EQ(count(), 0);
    host.start();
    EXPECT_NE(library_.krGetRebuildStatus(former, status.data(), 12), 0);
    const std::uint32_t handle = host.handle_of("box");
    EXPECT_NE(handle, former);
    ASSERT_EQ(library_.openConnection(handle), 0);
    EXPECT_EQ(library_.krGetRebuildStatus(handle, status.data(), 12), 0);
}

TEST_F(AbsentService, AfterTheBusWasReplacedTheNewOneIsUsed) {
    enclosure::dbus_transport way; // the library's own is on the test's bus already
    private_bus former;
    {
        const bus_address there(former.address());
        EXPECT_TRUE(way.bridges().handles.empty());
    }
    former.end();
    const private_bus later;
    const bus_address there(later.address());
    host_process host;
    const std::uint32_t handle = plug_example(host);
    EXPECT_EQ(way.bridges().handles, std::vector{handle});
    EXPECT_EQ(way.open(handle), enclosure::delivery::answered);
}

TEST(OpeningABridge, AsksForThatBridgeAlone) {
    const auto connection = sdbus::createSessionBusConnection(enclosure::bus::service);
    const auto only = sdbus::createObject(*connection, enclosure::bus::bridge_path(7));
    only->registerProperty("Handle").onInterface(enclosure::bus::bridge_interface).withGetter([] {
        return std::uint32_t{7};
    });
    only->finishRegistration();
    connection->enterEventLoopAsync();
    enclosure::dbus_transport way;
    EXPECT_TRUE(way.bridges().handles.empty()); // nobody lists them
    EXPECT_EQ(way.open(7), enclosure::delivery::answered);
    EXPECT_EQ(way.open(8), enclosure::delivery::gone);
    connection->leaveEventLoop();
}

} // namespace
