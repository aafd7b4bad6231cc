#include "model/rescan.h"

#include <array>
#include <cstdio>

#include "device/hotplug.h"
#include "model/krtool.h"
#include "model/window.h"
#include "util/functions.h"
#include "util/print.h"

hotplug_source* gNotifyPort = nullptr;
hotplug_source* gRunLoop = nullptr;
std::uint32_t gAddedIter = 0;

namespace {

void on_arrival(std::uint32_t iterator) {
    DeviceAdded(nullptr, iterator);
}

void on_departure(std::uint32_t service, std::uint32_t message_type) {
    DeviceRemoved(nullptr, service, message_type, nullptr);
}

// Asks for messages about every bridge that has arrived; taking them all re-arms the arrivals.
void take_arrivals(std::uint32_t iterator) {
    while (const std::uint32_t service = gNotifyPort->next(iterator)) {
        const std::int32_t error = gNotifyPort->add_interest_notification(service, on_departure);
        if (error != 0) {
            std::array<char, 80> line{};
            std::snprintf(line.data(), line.size(),
                          "IOServiceAddInterestNotification returned 0x%08x.\n",
                          static_cast<std::uint32_t>(error));
            print_out(line.data());
        }
    }
}

void scan_and_read() {
    j.scandevices();
    ctrller->update_controller_list();
    j.updatediskinformation();
    j.read_raid();
}

void forget_current() {
    const lock_scope lock(j.records);
    j.current.clear();
}

} // namespace

void start_device_notification(void* /*argument*/) {
    hotplug_source& source = j.with.hotplug;
    if (!source.match(bridge_class)) {
        print_err("IOServiceMatching returned NULL.\n");
        return;
    }
    gNotifyPort = &source;
    gRunLoop = &source;
    gAddedIter = source.add_matching_notification(on_arrival);
    DeviceAdded(nullptr, gAddedIter);
    print_err("Starting run loop.\n\n");
    gRunLoop->run();
    print_out("\n---Unexpectedly back from CFRunLoopRun()!");
}

void DeviceAdded(void* /*reference*/, std::uint32_t iterator) {
    const gate_scope gate(j.gate);
    ctrller->cleargui();
    ctrller->clear_controller_list();
    ctrller->startworking();
    writeintofile("Dev Added");
    if (iterator != 0) {
        take_arrivals(iterator);
    }
    scan_and_read();
    if (j.curr_chip_exists()) {
        writeintofile("Conn open made true");
        j.selected()->select_chip();
        ctrller->update_raid_information();
    } else {
        ctrller->select_first_controller();
    }
    j.warm_boot_pending = false;
    writeintofile("Dev Add finished");
    ctrller->stopworking();
}

void DeviceRemoved(void* /*reference*/, std::uint32_t /*service*/, std::uint32_t message_type,
                   void* /*message_argument*/) {
    writeintofile("Dev Removed");
    const bool departed = message_type == message_terminated && !j.warm_boot_pending;
    if (message_type != 0 && !departed) {
        return;
    }
    ctrller->cleargui();
    ctrller->startworking();
    j.with.pause.sleep(std::chrono::seconds(8));
    const gate_scope gate(j.gate);
    scan_and_read();
    if (j.curr_chip_exists()) {
        j.selected()->select_chip();
        ctrller->update_raid_information();
    } else {
        forget_current();
        ctrller->select_first_controller();
    }
    ctrller->stopworking();
}
