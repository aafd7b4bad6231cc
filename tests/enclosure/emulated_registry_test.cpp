#include "device/emulated_bus.h"
#include "device/source_registry.h"

#include "tests/enclosure/host_process.h"
#include "tests/enclosure/private_bus.h"

#include <gtest/gtest.h>

#include <condition_variable>
#include <cstdlib>
#include <mutex>
#include <thread>

namespace {

using handles = std::vector<std::uint32_t>;

struct heard_event {
    bool arrival;    // else departure
    handles bridges; // those that the iterator gave, or the one that left
    std::uint32_t type = 0;

    bool operator==(const heard_event&) const = default;
};

void PrintTo(const heard_event& event, std::ostream* to) {
    *to << (event.arrival ? "arrival" : "departure") << testing::PrintToString(event.bridges);
}

heard_event arrival_of(handles bridges) {
    return {true, std::move(bridges), 0};
}
heard_event departure_of(std::uint32_t bridge) {
    return {false, {bridge}, message_terminated};
}

// A program's use of the registry: a notification thread that takes every arrival and asks for
// the departure of each.
class notification_thread {
public:
    // Called within the handlers, after the event has been taken.
    std::function<void(const heard_event&)> within;

    explicit notification_thread(source_registry& registry) : registry_(registry) {}

    ~notification_thread() { finish(); }

    // Ends the thread; needed while what `within` uses is still there.
    void finish() {
        registry_.stop();
        if (thread_.joinable()) {
            thread_.join();
        }
    }

    void start() {
        thread_ = std::thread([this] {
            matched_ = registry_.match(bridge_class);
            const std::uint32_t iterator =
                registry_.add_matching_notification([this](std::uint32_t some) { take(some); });
            take(iterator);
            registry_.run();
        });
    }

    // The first `count` events, once they have happened.
    std::vector<heard_event> first(std::size_t count) {
        std::unique_lock lock(mutex_);
        happened_.wait_for(lock, std::chrono::seconds(30), [&] { return events_.size() >= count; });
        return {events_.begin(),
                events_.begin() + static_cast<std::ptrdiff_t>(std::min(count, events_.size()))};
    }

    void join() { thread_.join(); }

private:
    void take(std::uint32_t iterator) {
        heard_event event{true, {}, 0};
        while (const std::uint32_t service = registry_.next(iterator)) {
            event.bridges.push_back(service);
            registry_.add_interest_notification(service,
                                                [this](std::uint32_t gone, std::uint32_t type) {
                                                    note({false, {gone}, type});
                                                });
        }
        note(event);
    }

    void note(const heard_event& event) {
        if (within) {
            within(event);
        }
        const std::lock_guard lock(mutex_);
        events_.push_back(event);
        happened_.notify_all();
    }

    source_registry& registry_;
    std::thread thread_;
    std::mutex mutex_;
    std::condition_variable happened_;
    std::vector<heard_event> events_;
    bool matched_ = false;
};

class EmulatedRegistry : public testing::Test {
protected:
    static void add_enclosure(host_process& host, const std::string& name) {
        host.client().add_enclosure(
            {{"Name", sdbus::Variant(name)}, {"RestartDelay", sdbus::Variant(std::uint32_t{10})}});
    }

    registry_entry bus_device_of(std::uint32_t handle) {
        registry_entry entry = registry_.entry_of(handle);
        for (int i = 0; i < 4; ++i) {
            entry = registry_.parent(entry);
        }
        return entry;
    }

    std::string name_below(std::uint32_t handle) {
        registry_entry entry = registry_.entry_of(handle);
        for (int i = 0; i < 3; ++i) {
            entry = registry_.first_child(entry);
        }
        return registry_.name(entry);
    }

    source_registry registry_{std::make_unique<emulated_bus>()};
    notification_thread thread_{registry_};
};

TEST_F(EmulatedRegistry, TwoBridgesAttachedAtStartComeWithOneIterator) {
    host_process host;
    add_enclosure(host, "one");
    add_enclosure(host, "two");
    const std::uint32_t second = host.client().plug("two");
    const std::uint32_t first = host.client().plug("one");
    thread_.start();
    EXPECT_EQ(thread_.first(1), std::vector{arrival_of({second, first})});
}

TEST_F(EmulatedRegistry, BridgesComeAndGoInOrder) {
    host_process host;
    add_enclosure(host, "one");
    thread_.start();
    thread_.first(1);
    const std::uint32_t former = host.client().plug("one");
    thread_.first(2);
    host.client().unplug("one");
    thread_.first(3);
    const std::uint32_t later = host.client().plug("one");
    EXPECT_EQ(thread_.first(4), (std::vector{arrival_of({}), arrival_of({former}),
                                             departure_of(former), arrival_of({later})}));
}

TEST_F(EmulatedRegistry, ARestartedBridgeDepartsBeforeItArrives) {
    host_process host;
    add_enclosure(host, "one");
    const std::uint32_t former = host.client().plug("one");
    thread_.start();
    thread_.first(1);
    host.client().warm_boot("one");
    const std::uint32_t later = host.wait_for_new_handle("one", former);
    EXPECT_EQ(thread_.first(3),
              (std::vector{arrival_of({former}), departure_of(former), arrival_of({later})}));
}

TEST_F(EmulatedRegistry, WhatHappensDuringAHandlerIsKeptInOrder) {
    host_process host;
    add_enclosure(host, "one");
    add_enclosure(host, "two");
    add_enclosure(host, "three");
    std::uint32_t second = 0;
    std::uint32_t third = 0;
    const std::uint32_t first = host.client().plug("one");
    thread_.within = [&](const heard_event& event) {
        if (event.bridges == handles{first} && event.arrival && second == 0) {
            second = host.client().plug("two");
            third = host.client().plug("three");
            host.client().unplug("one");
            host.client().unplug("two");
        }
    };
    thread_.start();
    const std::vector<heard_event> heard = thread_.first(4);
    thread_.finish();
    EXPECT_EQ(heard, (std::vector{arrival_of({first}), arrival_of({second, third}),
                                  departure_of(first), departure_of(second)}));
}

TEST_F(EmulatedRegistry, ABridgeThatArrivesDuringAHandlerIsKnownToIt) {
    host_process host;
    add_enclosure(host, "one");
    std::uint32_t handle = 0;
    std::string name;
    thread_.within = [&](const heard_event&) {
        if (handle == 0) {
            handle = host.client().plug("one");
            name = name_below(handle);
        }
    };
    thread_.start();
    const std::vector<heard_event> heard = thread_.first(2);
    thread_.finish();
    EXPECT_EQ(heard, (std::vector{arrival_of({}), arrival_of({handle})}));
    EXPECT_EQ(name, "Emulated Kestrel Duo");
}

TEST_F(EmulatedRegistry, AServiceThatComesLaterBringsItsBridges) {
    bus_watch bus;
    thread_.start();
    thread_.first(1);
    EXPECT_FALSE(bus.service_runs());
    host_process host;
    add_enclosure(host, "one");
    const std::uint32_t handle = host.client().plug("one");
    EXPECT_EQ(thread_.first(2), (std::vector{arrival_of({}), arrival_of({handle})}));
}

TEST_F(EmulatedRegistry, AKilledServiceTakesItsBridgesAndARestartedOneBringsThemBack) {
    host_process host;
    add_enclosure(host, "one");
    add_enclosure(host, "two");
    const std::uint32_t first = host.client().plug("one");
    const std::uint32_t second = host.client().plug("two");
    thread_.start();
    thread_.first(1);
    host.kill();
    thread_.first(3);
    host.start();
    const std::uint32_t first_again = host.wait_for_new_handle("one", first);
    const std::uint32_t second_again = host.wait_for_new_handle("two", second);
    const std::vector<heard_event> heard = thread_.first(4);
    ASSERT_EQ(heard.size(), 4U);
    EXPECT_EQ(heard[1], departure_of(first));
    EXPECT_EQ(heard[2], departure_of(second));
    EXPECT_TRUE(heard[3].arrival);
    EXPECT_EQ(heard[3].bridges.front(), std::min(first_again, second_again));
}

TEST_F(EmulatedRegistry, AUsbBridgeHasItsPropertiesFourLevelsUp) {
    host_process host;
    host.client().add_enclosure({{"Name", sdbus::Variant(std::string("one"))},
                                 {"VendorId", sdbus::Variant(std::uint32_t{0x1111})},
                                 {"ProductId", sdbus::Variant(std::uint32_t{0x2222})},
                                 {"LocationId", sdbus::Variant(std::int32_t{-2})},
                                 {"Serial", sdbus::Variant(std::string("ABC-1"))},
                                 {"Product", sdbus::Variant(std::string("Trio"))}});
    const std::uint32_t handle = host.client().plug("one");
    thread_.start();
    thread_.first(1);
    const registry_entry device = bus_device_of(handle);
    EXPECT_EQ(registry_.name(device).find("FireWire"), std::string::npos);
    EXPECT_EQ(registry_.number(device, "idVendor"), 0x1111);
    EXPECT_EQ(registry_.number(device, "idProduct"), 0x2222);
    EXPECT_EQ(registry_.number(device, "locationID"), -2);
    EXPECT_EQ(registry_.number(device, "GUID"), 0);
    EXPECT_EQ(registry_.text(device, "USB Serial Number"), u"ABC-1");
    EXPECT_EQ(registry_.parent(device), 0U);
    EXPECT_EQ(registry_.number(registry_.entry_of(handle), "idVendor"), 0);
    EXPECT_EQ(name_below(handle), "Emulated Trio");
}

TEST_F(EmulatedRegistry, AFireWireBridgeHangsBelowAFireWireDevice) {
    host_process host;
    host.client().add_enclosure({{"Name", sdbus::Variant(std::string("wire"))},
                                 {"Bus", sdbus::Variant(std::string("FireWire"))},
                                 {"Guid", sdbus::Variant(std::uint64_t{0xF122334455667788})}});
    const std::uint32_t handle = host.client().plug("wire");
    thread_.start();
    thread_.first(1);
    const registry_entry device = bus_device_of(handle);
    EXPECT_NE(registry_.name(device).find("FireWire"), std::string::npos);
    EXPECT_EQ(static_cast<std::uint64_t>(registry_.number(device, "GUID")), 0xF122334455667788U);
    EXPECT_EQ(registry_.number(device, "idVendor"), 0);
    EXPECT_EQ(registry_.text(device, "USB Serial Number"), u"");
}

TEST_F(EmulatedRegistry, ADepartedBridgeIsKnownUntilItsDepartureIsHandled) {
    host_process host;
    add_enclosure(host, "one");
    const std::uint32_t handle = host.client().plug("one");
    std::string name_then;
    thread_.within = [&](const heard_event& event) {
        if (!event.arrival) {
            name_then = name_below(handle);
        }
    };
    thread_.start();
    thread_.first(1);
    host.client().unplug("one");
    add_enclosure(host, "two");
    host.client().plug("two");
    thread_.first(3);
    thread_.finish();
    EXPECT_EQ(name_then, "Emulated Kestrel Duo");
    EXPECT_EQ(registry_.entry_of(handle), 0U);
}

TEST_F(EmulatedRegistry, WhatIsNotThereHasNoEntry) {
    const host_process host;
    thread_.start();
    thread_.first(1);
    EXPECT_EQ(registry_.entry_of(12345), 0U);
    EXPECT_EQ(registry_.parent(0), 0U);
    EXPECT_EQ(registry_.first_child(99), 0U);
    EXPECT_EQ(registry_.name(0), "");
    EXPECT_EQ(registry_.number(0, "GUID"), 0);
    EXPECT_EQ(registry_.text(0, "USB Serial Number"), u"");
}

TEST_F(EmulatedRegistry, SignalsOfOthersAreNotBelieved) {
    host_process host;
    add_enclosure(host, "one");
    const std::uint32_t handle = host.client().plug("one");
    thread_.start();
    thread_.first(1);

    const auto connection = sdbus::createSessionBusConnection();
    const auto forger = sdbus::createObject(*connection, enclosure::bus::root);
    auto added = forger->createSignal(enclosure::bus::object_manager_interface, "InterfacesAdded");
    added << sdbus::ObjectPath(enclosure::bus::bridge_path(77))
          << std::map<std::string, enclosure::bus::options>{
                 {enclosure::bus::bridge_interface,
                  {{"Handle", sdbus::Variant(std::uint32_t{77})},
                   {"Bus", sdbus::Variant(std::string("USB"))}}}};
    forger->emitSignal(added);
    auto removed =
        forger->createSignal(enclosure::bus::object_manager_interface, "InterfacesRemoved");
    removed << sdbus::ObjectPath(enclosure::bus::bridge_path(handle))
            << std::vector<std::string>{enclosure::bus::bridge_interface};
    forger->emitSignal(removed);

    add_enclosure(host, "two");
    const std::uint32_t real = host.client().plug("two");
    EXPECT_EQ(thread_.first(2), (std::vector{arrival_of({handle}), arrival_of({real})}));
    EXPECT_EQ(registry_.entry_of(77), 0U);
}

TEST_F(EmulatedRegistry, AServiceThatDescribesNonsenseIsNotBelieved) {
    thread_.start();
    thread_.first(1);
    const std::string usb = "USB"; // what is served is kept by reference
    const std::string floppy = "Floppy";
    const std::uint64_t number = 5;
    const auto connection = sdbus::createSessionBusConnection(enclosure::bus::service);
    const auto root = sdbus::createObject(*connection, enclosure::bus::root);
    root->addObjectManager();
    std::vector<std::unique_ptr<sdbus::IObject>> objects;
    const auto add = [&](std::uint32_t in_path, std::uint32_t handle, const auto& bus) {
        objects.push_back(sdbus::createObject(*connection, enclosure::bus::bridge_path(in_path)));
        auto& object = *objects.back();
        object.registerProperty("Handle")
            .onInterface(enclosure::bus::bridge_interface)
            .withGetter([handle] { return handle; });
        object.registerProperty("Bus")
            .onInterface(enclosure::bus::bridge_interface)
            .withGetter([&bus] { return bus; });
        object.registerProperty("Name")
            .onInterface(enclosure::bus::bridge_interface)
            .withGetter([] { return std::string(500, 'N'); });
        object.finishRegistration();
        object.emitInterfacesAddedSignal({enclosure::bus::bridge_interface});
    };
    connection->enterEventLoopAsync();
    add(1, 2, usb);
    add(0, 0, usb);
    add(3, 3, floppy);
    add(4, 4, number);
    for (const char* const name : {"InterfacesAdded", "InterfacesRemoved"}) {
        auto of_other_types = root->createSignal(enclosure::bus::object_manager_interface, name);
        of_other_types << std::string("no object path");
        root->emitSignal(of_other_types);
    }
    add(6, 6, usb);
    const std::vector<heard_event> heard = thread_.first(2);
    ASSERT_EQ(heard.size(), 2U);
    EXPECT_EQ(heard[1], arrival_of({6}));
    EXPECT_EQ(name_below(6), std::string(127, 'N'));
    connection->leaveEventLoop();
}

TEST_F(EmulatedRegistry, OnlyTheBridgeClassIsServed) {
    testing::internal::CaptureStderr();
    EXPECT_FALSE(registry_.match("disk"));
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
}

TEST_F(EmulatedRegistry, AnInterestInABridgeThatNeverCameIsRefused) {
    EXPECT_NE(registry_.add_interest_notification(5, {}), 0);
}

TEST_F(EmulatedRegistry, StoppedBeforeItRunsItReturnsAtOnce) {
    ASSERT_TRUE(registry_.match(bridge_class));
    registry_.stop();
    registry_.run();
}

TEST_F(EmulatedRegistry, WithoutABusThereIsOneLineAndNothingToListenTo) {
    const bus_address elsewhere("unix:path=/nonexistent/bus");
    testing::internal::CaptureStderr();
    EXPECT_FALSE(registry_.match(bridge_class));
    const std::string line = testing::internal::GetCapturedStderr();
    EXPECT_EQ(line.find("no session bus"), 0U);
    EXPECT_EQ(line.find('\n'), line.size() - 1);
    EXPECT_EQ(registry_.entry_of(1), 0U);
}

TEST_F(EmulatedRegistry, ItEndsWithItsBusAndItsBridgesDepartFirst) {
    private_bus bus;
    const bus_address there(bus.address());
    {
        host_process host;
        add_enclosure(host, "one");
        host.client().plug("one");
        thread_.start();
        thread_.first(1);
        testing::internal::CaptureStderr();
        bus.end();
        host.abandon();
        thread_.join();
        EXPECT_EQ(testing::internal::GetCapturedStderr().find("the session bus has gone"), 0U);
    }
    const std::vector<heard_event> heard = thread_.first(2);
    ASSERT_EQ(heard.size(), 2U);
    EXPECT_EQ(heard[1].type, message_terminated);
}

} // namespace
