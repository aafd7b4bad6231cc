// The registry and the hot-plug source as the program uses them.
#include "device/sg_handle.h"
#include "device/source_registry.h"
#include "device/udev_source.h"
#include "tests/udev/mock_bus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::SizeIs;

constexpr std::uint64_t the_arrival = 1;

class UdevRegistry : public testing::Test {
protected:
    template<class Device> void add(const Device& device, const mock_bridge& bridge) {
        bus_.add(device);
        add_unit(device.path(), bridge);
    }
    void add_unit(const std::string& device, const mock_bridge& bridge) {
        bus_.add_scsi_device(device, bridge);
        bus_.add_node(device, bridge);
    }

    // Begins as the notification thread does, and gives the bridges of the first iterator.
    std::vector<std::uint32_t> start() {
        EXPECT_TRUE(registry_.match(bridge_class));
        return taken(registry_.add_matching_notification([this](std::uint32_t iterator) {
            arrivals_.push_back(taken(iterator));
            registry_.stop();
        }));
    }
    std::vector<std::uint32_t> taken(std::uint32_t iterator) {
        std::vector<std::uint32_t> bridges;
        while (const std::uint32_t service = registry_.next(iterator)) {
            bridges.push_back(service);
            registry_.add_interest_notification(service, [this](std::uint32_t gone, std::uint32_t) {
                departures_.push_back(gone);
                serial_at_departure_ = registry_.text(bus_device_of(gone), "USB Serial Number");
                registry_.stop();
            });
        }
        return bridges;
    }

    registry_entry bus_device_of(std::uint32_t device) {
        registry_entry entry = registry_.entry_of(device);
        for (int level = 0; level < 4; ++level) {
            entry = registry_.parent(entry);
        }
        return entry;
    }
    std::string name_below(std::uint32_t device) {
        registry_entry entry = registry_.entry_of(device);
        for (int level = 0; level < 3; ++level) {
            entry = registry_.first_child(entry);
        }
        return registry_.name(entry);
    }

    mock_bus bus_;
    mock_usb_device usb_;
    mock_bridge bridge_;
    source_registry registry_{std::make_unique<udev_source>(
        std::make_unique<udev_events>(), [](const std::string&) { return the_arrival; })};
    std::vector<std::vector<std::uint32_t>> arrivals_;
    std::vector<std::uint32_t> departures_;
    std::u16string serial_at_departure_;
};

TEST_F(UdevRegistry, BridgesThatAreThereComeWithOneIterator) {
    add(usb_, bridge_);
    bridge_.host = "7";
    bridge_.sg = "1";
    add(mock_firewire_device(), bridge_);
    EXPECT_THAT(start(), SizeIs(2));
}

TEST_F(UdevRegistry, AUsbBridgeHasItsPropertiesFourLevelsUp) {
    add(usb_, bridge_);
    const std::uint32_t handle = start().at(0);
    const registry_entry device = bus_device_of(handle);
    EXPECT_EQ(registry_.name(device).find("FireWire"), std::string::npos);
    EXPECT_EQ(registry_.number(device, "idVendor"), 0x1209);
    EXPECT_EQ(registry_.number(device, "idProduct"), 0x4B52);
    EXPECT_EQ(registry_.number(device, "locationID"), 0x02140000);
    EXPECT_EQ(registry_.text(device, "USB Serial Number"), u"KR-0042");
    EXPECT_EQ(name_below(handle), "KESTREL Duo");
}

TEST_F(UdevRegistry, AFireWireBridgeHangsBelowAFireWireDevice) {
    add(mock_firewire_device(), bridge_);
    const registry_entry device = bus_device_of(start().at(0));
    EXPECT_NE(registry_.name(device).find("FireWire"), std::string::npos);
    EXPECT_EQ(static_cast<std::uint64_t>(registry_.number(device, "GUID")), 0xF122334455667788U);
}

TEST_F(UdevRegistry, EveryUnitOfADeviceHasAnEntryAndTheFirstAloneArrives) {
    add(usb_, bridge_);
    bridge_.lun = "1";
    bridge_.sg = "1";
    add_unit(usb_.path(), bridge_);
    EXPECT_THAT(start(), ElementsAre(sg_handle(0, the_arrival)));
    const registry_entry other = bus_device_of(sg_handle(1, the_arrival));
    EXPECT_EQ(registry_.number(other, "locationID"), 0x02140000);
    EXPECT_EQ(registry_.text(other, "USB Serial Number"), u"KR-0042");
}

TEST_F(UdevRegistry, ABridgeIsReachedThroughItsNodeIfTheUserMay) {
    bridge_.sg = "31999"; // no machine has so many
    add(usb_, bridge_);
    mock_usb_device open_device;
    open_device.ports = "2";
    mock_bridge open_bridge;
    open_bridge.host = "7";
    open_bridge.sg = "32000";
    open_bridge.file = "/dev/null";
    add(open_device, open_bridge);
    start();
    EXPECT_THAT(registry_.reached(),
                testing::UnorderedElementsAre(reached_bridge{"KESTREL Duo", "/dev/sg31999", false},
                                              reached_bridge{"KESTREL Duo", "/dev/null", true}));
}

TEST_F(UdevRegistry, ADeviceOfSeveralUnitsIsReachedOnce) {
    add(usb_, bridge_);
    bridge_.lun = "1";
    bridge_.sg = "1";
    add_unit(usb_.path(), bridge_);
    start();
    EXPECT_THAT(registry_.reached(), SizeIs(1));
}

TEST_F(UdevRegistry, ABridgeOfWhichItHasNotHeardYetIsKnownWhenItIsAskedFor) {
    start();
    add(usb_, bridge_);
    bus_.tell("add", usb_.path(), bridge_);
    EXPECT_NE(registry_.entry_of(sg_handle(0, the_arrival)), 0U);
}

TEST_F(UdevRegistry, AnArrivalIsAnnounced) {
    EXPECT_THAT(start(), SizeIs(0));
    add(usb_, bridge_);
    bus_.tell("add", usb_.path(), bridge_);
    registry_.run();
    ASSERT_THAT(arrivals_, ElementsAre(SizeIs(1)));
    EXPECT_EQ(name_below(arrivals_[0][0]), "KESTREL Duo");
}

TEST_F(UdevRegistry, ADepartedBridgeIsKnownUntilItsDepartureIsHandled) {
    add(usb_, bridge_);
    const std::uint32_t handle = start().at(0);
    bus_.tell("remove", usb_.path(), bridge_);
    bus_.take_out(usb_.path(), bridge_);
    registry_.run();
    EXPECT_THAT(departures_, ElementsAre(handle));
    EXPECT_EQ(serial_at_departure_, u"KR-0042");
    EXPECT_EQ(registry_.entry_of(handle), 0U);
}

TEST(UdevRegistryOfTheSystem, FindsWhatTheRuleHasChosen) {
    mock_bus bus;
    const mock_usb_device device;
    bus.add(device);
    bus.add_scsi_device(device.path(), {});
    bus.add_node(device.path(), {});
    source_registry registry(std::make_unique<udev_source>());
    ASSERT_TRUE(registry.match(bridge_class));
    EXPECT_NE(registry.next(registry.add_matching_notification({})), 0U);
}

} // namespace
