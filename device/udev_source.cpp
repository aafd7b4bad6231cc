#include "device/udev_source.h"

#include "util/print.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <system_error>
#include <utility>

namespace {

constexpr int most_failures = 1000;      // to read an event, one after the other
constexpr int time_to_look_again = 1000; // milliseconds

} // namespace

udev_source::udev_source() : udev_source(std::make_unique<udev_events>(), sysfs_arrival_number) {}

udev_source::udev_source(std::unique_ptr<node_events> events, arrival_number arrival)
    : events_(std::move(events)), arrival_(std::move(arrival)) {}

// It listens before it looks: what comes in between is told twice, and taken once.
bool udev_source::listen(listener told) {
    told_ = std::move(told);
    context_.reset(udev_new());
    if (!context_ || !events_->open()) {
        print_err("udev cannot be listened to: " + std::system_category().message(errno) +
                  "; enclosures on USB and FireWire are not seen\n");
        return false;
    }
    look_at_everything();
    return true;
}

bool udev_source::process() {
    while (const std::optional<node_event> event = events_->next()) {
        if (event->what == node_event::kind::lost) {
            return make_good();
        }
        take(*event);
    }
    if (owes_look_) {
        look_at_everything();
    }
    return true;
}

// What is still to be read happened before the look at everything, and counts no more.
bool udev_source::make_good() {
    for (int failures = 0; failures < most_failures;) {
        const std::optional<node_event> event = events_->next();
        if (!event) {
            look_at_everything();
            return true;
        }
        failures = event->what == node_event::kind::lost ? failures + 1 : 0;
    }
    end();
    return false;
}

void udev_source::end() {
    while (!present_.empty()) {
        depart(std::string(present_.begin()->first));
    }
    if (!std::exchange(ended_, true)) {
        print_err("udev is not heard any more; start the program again for enclosures on USB and "
                  "FireWire\n");
    }
}

bool udev_source::catch_up() {
    return process();
}

pollfd udev_source::watched() const {
    return {events_->descriptor(), POLLIN, 0};
}

int udev_source::poll_timeout() const {
    return owes_look_ ? time_to_look_again : -1;
}

void udev_source::take(const node_event& event) {
    if (event.what == node_event::kind::removed) {
        depart(udev_device_get_syspath(event.node.get()));
    } else if (const auto node = bridge_node_of(event.node.get(), arrival_)) {
        arrive(*node);
    }
}

void udev_source::look_at_everything() {
    const std::optional<std::vector<bridge_node>> there = nodes_there();
    owes_look_ = !there;
    if (!there) {
        return;
    }
    std::vector<std::string> gone;
    for (const auto& [path, node] : present_) {
        const bool still_there =
            std::any_of(there->begin(), there->end(), [&node = node](const bridge_node& one) {
                return one.identity.handle == node.identity.handle;
            });
        if (!still_there) {
            gone.push_back(path);
        }
    }
    for (const std::string& path : gone) {
        depart(path);
    }
    for (const bridge_node& node : *there) {
        arrive(node);
    }
}

// Nothing when not everything can be seen.
std::optional<std::vector<bridge_node>> udev_source::nodes_there() const {
    const udev_pointer<udev_enumerate> nodes{udev_enumerate_new(context_.get())};
    if (!nodes || udev_enumerate_add_match_subsystem(nodes.get(), node_subsystem) < 0 ||
        udev_enumerate_scan_devices(nodes.get()) < 0) {
        return std::nullopt;
    }
    std::vector<bridge_node> there;
    for (udev_list_entry* entry = udev_enumerate_get_list_entry(nodes.get()); entry != nullptr;
         entry = udev_list_entry_get_next(entry)) {
        const char* const path = udev_list_entry_get_name(entry);
        const udev_pointer<udev_device> node{udev_device_new_from_syspath(context_.get(), path)};
        if (!node && sysfs_arrival_number(path) != 0) {
            return std::nullopt;
        }
        const auto bridge = node ? bridge_node_of(node.get(), arrival_) : std::nullopt;
        if (bridge) {
            there.push_back(*bridge);
        }
    }
    return there;
}

// Host and node numbers are used again, so the same path can be another arrival.
void udev_source::arrive(const bridge_node& node) {
    if (const auto former = present_.find(node.path); former != present_.end()) {
        if (former->second.identity.handle == node.identity.handle) {
            return;
        }
        depart(node.path);
    }
    bridge_node arrived = node;
    arrived.identity.announced = !is_told(node.bus_device);
    told_.arrived(arrived.identity);
    present_.emplace(arrived.path, std::move(arrived));
}

void udev_source::depart(const std::string& path) {
    if (const auto gone = present_.extract(path)) {
        told_.departed(gone.mapped().identity.handle);
    }
}

bool udev_source::is_told(const std::string& bus_device) const {
    return std::any_of(present_.begin(), present_.end(), [&bus_device](const auto& one) {
        return one.second.bus_device == bus_device && one.second.identity.announced;
    });
}
