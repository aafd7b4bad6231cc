#include "tests/storm/bench_source.h"

#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

namespace {

bridge_identity identity_of(const enclosure::bridge& bridge) {
    bridge_identity identity;
    identity.handle = bridge.handle;
    identity.firewire = bridge.bus == enclosure::bus_kind::firewire;
    identity.vendor_id = bridge.vendor_id;
    identity.product_id = bridge.product_id;
    identity.location_id = bridge.location;
    identity.serial = bridge.serial;
    identity.guid = bridge.guid;
    identity.name = bridge.name;
    return identity;
}

} // namespace

bench_source::bench_source(enclosure::in_process_bench& bench)
    : bench_(bench), wake_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    bench_.on_bus_event([this](const auto& event) { happened(event); });
}

bench_source::~bench_source() {
    bench_.on_bus_event({});
    ::close(wake_);
}

void bench_source::happened(const enclosure::in_process_bench::bus_event& event) {
    {
        const mutex_scope lock(mutex_);
        events_.push_back(event);
        ++happened_;
    }
    wake();
}

void bench_source::wake() const {
    ::eventfd_write(wake_, 1);
}

void bench_source::await_backlog(std::uint64_t most) {
    const mutex_scope lock(mutex_);
    while (happened_ - dealt_with_ > most) {
        caught_up_.wait(mutex_);
    }
}

bool bench_source::listen(listener told) {
    told_ = std::move(told);
    const mutex_scope lock(mutex_);
    notification_ = std::this_thread::get_id();
    return true;
}

// The notification thread comes here once it has dealt with all that it took before; others come
// to take in what they know of already.
bool bench_source::process() {
    eventfd_t wakes = 0;
    ::eventfd_read(wake_, &wakes);
    {
        const mutex_scope lock(mutex_);
        if (std::this_thread::get_id() == notification_) {
            dealt_with_ = taken_;
            caught_up_.notify_all();
        }
    }
    while (const auto event = take()) {
        tell(*event);
        wake(); // to come here again afterwards
    }
    return true;
}

std::optional<enclosure::in_process_bench::bus_event> bench_source::take() {
    const mutex_scope lock(mutex_);
    if (events_.empty()) {
        return std::nullopt;
    }
    enclosure::in_process_bench::bus_event next = std::move(events_.front());
    events_.pop_front();
    ++taken_;
    return next;
}

void bench_source::tell(const enclosure::in_process_bench::bus_event& event) {
    if (event.arrived) {
        told_.arrived(identity_of(event.subject));
    } else {
        told_.departed(event.subject.handle);
    }
}

pollfd bench_source::watched() const {
    return {wake_, POLLIN, 0};
}
