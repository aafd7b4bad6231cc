#include "enclosure/host_service.h"

#include <poll.h>

#include <algorithm>
#include <ctime>
#include <vector>

namespace enclosure {

namespace {

// How far back a copy may fall when the service is killed.
constexpr moment save_interval = std::chrono::seconds(1);

timespec as_timespec(moment time) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time);
    return {seconds.count(), (time - seconds).count()};
}

bool readable(int fd) {
    pollfd one{fd, POLLIN, 0};
    return ::poll(&one, 1, 0) > 0;
}

} // namespace

host_service::host_service(sdbus::IConnection& connection, state_store& store, line_sink complain)
    : store_(store),
      desk_(store.image_folder(), *this),
      usb_(desk_, owners_, std::move(complain)),
      context_{connection, desk_, usb_, {}, {}},
      manager_(context_) {
    store_.load(desk_, context_.clock.now());
}

host_service::~host_service() {
    save_copies(context_.clock.now(), true);
}

void host_service::run(int stop_fd) {
    while (!readable(stop_fd)) {
        if (!serve()) {
            wait(stop_fd);
        }
    }
}

// One request, what has come over USB/IP, one piece of every copy, all answers that are due. True:
// there is more to do.
bool host_service::serve() {
    const bool requests = context_.connection.processPendingRequest();
    const moment now = context_.clock.now();
    usb_.serve(now);
    const bool copies = desk_.advance(now);
    answer_due(now);
    save_copies(now, false);
    return requests || copies;
}

void host_service::answer_due(moment now) {
    while (!context_.later.empty() && context_.later.begin()->first <= now) {
        const auto answer = context_.later.extract(context_.later.begin());
        answer.mapped()();
    }
}

void host_service::save_copies(moment now, bool at_once) {
    if (!at_once && now - saved_at_ < save_interval) {
        return;
    }
    for (const auto& [name, what] : desk_.enclosures()) {
        if (what->bridge_chip().copy().running()) {
            store_.save_enclosure(*what);
        }
    }
    saved_at_ = context_.clock.now(); // it may have taken a while
}

void host_service::wait(int stop_fd) {
    const auto bus_wait = context_.connection.getEventLoopPollData();
    const moment now = context_.clock.now();
    std::optional<moment> until = desk_.next_event(now);
    if (!context_.later.empty()) {
        until = std::min(until.value_or(moment::max()), context_.later.begin()->first);
    }
    if (const auto usb_limit = usb_.next_event()) {
        until = std::min(until.value_or(moment::max()), *usb_limit);
    }
    if (const auto bus_limit = bus_wait.getRelativeTimeout()) {
        until = std::min(until.value_or(moment::max()), now + *bus_limit);
    }
    std::vector<pollfd> watched = {{bus_wait.fd, bus_wait.events, 0}, {stop_fd, POLLIN, 0}};
    usb_.watch(watched);
    const timespec limit = as_timespec(std::max(until.value_or(now) - now, moment{0}));
    ::ppoll(watched.data(), watched.size(), until ? &limit : nullptr, nullptr);
}

void host_service::enclosure_added(const std::string& name) {
    enclosures_.emplace(name, std::make_unique<enclosure_object>(context_, name));
}

void host_service::enclosure_removed(const std::string& name) {
    enclosures_.erase(name);
    store_.remove_enclosure(name);
}

void host_service::enclosure_changed(const std::string& name) {
    store_.save_enclosure(desk_.enclosure(name));
}

void host_service::bridge_arrived(const bridge& what) {
    bridges_.emplace(what.handle, std::make_unique<bridge_object>(context_, what));
}

void host_service::bridge_departed(std::uint32_t handle) {
    bridges_.erase(handle);
}

void host_service::disk_added(const std::string& name) {
    store_.save_disk(*desk_.disks().at(name));
}

void host_service::disk_removed(const std::string& name) {
    store_.remove_disk(name);
}

void host_service::next_handle_changed(std::uint32_t next) {
    store_.save_next_handle(next);
}

} // namespace enclosure
