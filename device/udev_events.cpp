#include "device/udev_events.h"

#include "device/bridge_node.h"

#include <cerrno>
#include <string_view>

namespace {

// Of an event that has come.
node_event::kind kind_of(udev_device* node) {
    const char* const action = udev_device_get_action(node);
    const bool removed = action != nullptr && std::string_view(action) == "remove";
    return removed ? node_event::kind::removed : node_event::kind::seen;
}

} // namespace

bool udev_events::open() {
    context_.reset(udev_new());
    monitor_.reset(context_ ? udev_monitor_new_from_netlink(context_.get(), "udev") : nullptr);
    if (!monitor_) {
        return false;
    }
    int error =
        udev_monitor_filter_add_match_subsystem_devtype(monitor_.get(), node_subsystem, nullptr);
    if (error >= 0) {
        error = udev_monitor_enable_receiving(monitor_.get());
    }
    errno = -error;
    return error >= 0;
}

int udev_events::descriptor() const {
    return udev_monitor_get_fd(monitor_.get());
}

std::optional<node_event> udev_events::next() {
    do {
        errno = 0;
        if (udev_pointer<udev_device> node{udev_monitor_receive_device(monitor_.get())}) {
            const node_event::kind what = kind_of(node.get());
            return node_event{what, std::move(node)};
        }
    } while (errno == EINTR);
    if (errno == EAGAIN) {
        return std::nullopt;
    }
    return node_event{node_event::kind::lost, nullptr}; // above all ENOBUFS
}
