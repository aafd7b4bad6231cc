// A service that does not tell its bridges when it is first asked.
#include "device/emulated_bus.h"
#include "device/source_registry.h"
#include "enclosure/dbus_names.h"

#include <gtest/gtest.h>

#include <sdbus-c++/sdbus-c++.h>

#include <map>
#include <memory>
#include <vector>

namespace {

namespace bus = enclosure::bus;

constexpr std::uint32_t handle = 7;

// Refuses to list its bridge until it is told to, and then does not announce it.
class reluctant_service {
public:
    reluctant_service() { connection_->enterEventLoopAsync(); }
    ~reluctant_service() { connection_->leaveEventLoop(); }
    reluctant_service(const reluctant_service&) = delete;
    reluctant_service& operator=(const reluctant_service&) = delete;

    // A signal of a bridge that has come, which changes nothing about the list.
    void announce(std::uint32_t bridge) {
        auto added = root_->createSignal(bus::object_manager_interface, "InterfacesAdded");
        added << sdbus::ObjectPath(bus::bridge_path(bridge))
              << std::map<std::string, bus::options>{
                     {bus::bridge_interface,
                      {{"Handle", sdbus::Variant(bridge)},
                       {"Bus", sdbus::Variant(std::string("USB"))}}}};
        root_->emitSignal(added);
    }

    void list_bridge() {
        bridge_ = sdbus::createObject(*connection_, bus::bridge_path(handle));
        bridge_->registerProperty("Handle").onInterface(bus::bridge_interface).withGetter([] {
            return handle;
        });
        bridge_->registerProperty("Bus").onInterface(bus::bridge_interface).withGetter([] {
            return std::string("USB");
        });
        bridge_->finishRegistration();
        root_->addObjectManager();
    }

private:
    std::unique_ptr<sdbus::IConnection> connection_ =
        sdbus::createSessionBusConnection(bus::service);
    std::unique_ptr<sdbus::IObject> root_ = sdbus::createObject(*connection_, bus::root);
    std::unique_ptr<sdbus::IObject> bridge_;
};

TEST(LateListing, ABridgeThatWasNotToldAtFirstIsKnownWhenItIsAskedFor) {
    reluctant_service service;
    source_registry registry{std::make_unique<emulated_bus>()};
    testing::internal::CaptureStderr();
    ASSERT_TRUE(registry.match(bridge_class));
    EXPECT_EQ(testing::internal::GetCapturedStderr().find("enclosure service does not list"), 0U);
    EXPECT_EQ(registry.entry_of(handle), 0U);
    service.list_bridge();
    EXPECT_NE(registry.entry_of(handle), 0U);
}

TEST(LateListing, ABridgeThatWasNotToldAtFirstArrivesWithoutAnotherEvent) {
    reluctant_service service;
    source_registry registry{std::make_unique<emulated_bus>()};
    std::vector<std::uint32_t> arrived;
    testing::internal::CaptureStderr();
    ASSERT_TRUE(registry.match(bridge_class));
    const std::uint32_t iterator = registry.add_matching_notification([&](std::uint32_t some) {
        while (const std::uint32_t bridge = registry.next(some)) {
            arrived.push_back(bridge);
        }
        if (arrived.back() == handle) {
            registry.stop();
        } else {
            service.list_bridge();
        }
    });
    EXPECT_EQ(registry.next(iterator), 0U);
    service.announce(handle - 1);
    registry.run();
    EXPECT_EQ(arrived, (std::vector{handle - 1, handle}));
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(said.find('\n'), said.size() - 1) << said;
}

} // namespace
