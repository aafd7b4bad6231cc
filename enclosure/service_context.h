// What the objects on the bus share.
#pragma once

#include "enclosure/clock.h"
#include "enclosure/dbus_names.h"
#include "enclosure/desk.h"
#include "enclosure/problem.h"
#include "enclosure/usb_host.h"

#include <functional>
#include <map>

namespace enclosure {

struct service_context {
    sdbus::IConnection& connection;
    desk& on;
    usb_host& usb;
    real_clock clock;
    std::multimap<moment, std::function<void()>> later; // answers that take time, by when
};

// Makes a request on the desk; what cannot be done becomes an error of the bus.
template<class Action> auto on_request(Action action) {
    try {
        return action();
    } catch (const problem& trouble) {
        throw sdbus::Error(bus::error_name, trouble.what());
    }
}

} // namespace enclosure
