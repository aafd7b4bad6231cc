#include "tests/vm/cable.h"

#include "tests/vm/shell.h"

#include <libudev.h>
#include <poll.h>

#include <memory>
#include <mutex>
#include <stdexcept>
#include <string_view>

namespace {

struct udev_release {
    void operator()(udev* what) const { udev_unref(what); }
    void operator()(udev_monitor* what) const { udev_monitor_unref(what); }
    void operator()(udev_device* what) const { udev_device_unref(what); }
};
template<class What> using udev_pointer = std::unique_ptr<What, udev_release>;

// The comings and goings of USB devices from its making on.
class usb_events {
public:
    usb_events()
        : context_(udev_new()), monitor_(udev_monitor_new_from_netlink(&*context_, "udev")) {
        udev_monitor_filter_add_match_subsystem_devtype(&*monitor_, "usb", "usb_device");
        udev_monitor_enable_receiving(&*monitor_);
    }

    udev_pointer<udev_device> next() {
        for (;;) {
            pollfd waiting{udev_monitor_get_fd(&*monitor_), POLLIN, 0};
            ::poll(&waiting, 1, -1);
            if (udev_pointer<udev_device> event{udev_monitor_receive_device(&*monitor_)}) {
                return event;
            }
        }
    }

    // Until the device with that serial number has come; where it is. The number is the event's
    // own: by the time it is read the device may have gone.
    std::string await_arrival(std::string_view serial) {
        for (;;) {
            const auto event = next();
            const char* const number = udev_device_get_property_value(&*event, "ID_SERIAL_SHORT");
            if (is(*event, "add") && number != nullptr && number == serial) {
                return udev_device_get_syspath(&*event);
            }
        }
    }

    void await_departure(const std::string& path) {
        for (;;) {
            const auto event = next();
            if (is(*event, "remove") && path == udev_device_get_syspath(&*event)) {
                return;
            }
        }
    }

private:
    static bool is(udev_device& event, std::string_view action) {
        return udev_device_get_action(&event) == action;
    }

    udev_pointer<udev> context_;
    udev_pointer<udev_monitor> monitor_;
};

// What the export prints: "... as 1-1 on port 3240".
std::string bus_id_in(const std::string& told) {
    constexpr std::string_view mark = "--busid ";
    const std::size_t at = told.find(mark);
    if (at == std::string::npos) {
        throw std::runtime_error("no bus id in: " + told);
    }
    const std::size_t from = at + mark.size();
    return told.substr(from, told.find_first_of(" \n", from) - from);
}

} // namespace

void cable::plug() {
    bus_id_ = bus_id_in(run("krenclosure export " + enclosure_));
    keeper_ = std::thread([this] { keep_attached(); });
}

bool cable::attach() {
    return try_run("usbip attach --remote 127.0.0.1 --busid " + bus_id_);
}

// Each attachment needs its own events, from before it on. One at a time: usbip refuses to attach
// while another device is on its way into the kernel.
void cable::keep_attached() {
    static std::mutex attaching;
    usb_events events;
    for (;;) {
        std::string path;
        {
            const std::lock_guard alone(attaching);
            if (!attach()) {
                return;
            }
            path = events.await_arrival(serial_);
        }
        events.await_departure(path);
    }
}

// Without the export the next attachment fails, which ends the keeper.
void cable::pull() {
    if (keeper_.joinable()) {
        try_run("krenclosure unexport " + enclosure_);
        keeper_.join();
    }
}
