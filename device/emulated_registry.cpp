#include "device/emulated_registry.h"

#include "device/emulated_bridges.h"
#include "device/emulated_bus.h"
#include "util/mutex.h"
#include "util/print.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <deque>
#include <map>
#include <optional>
#include <utility>

namespace {

constexpr std::uint32_t the_iterator = 1;

using bridge_number = emulated_bridges::number_type;

struct bus_event {
    bool arrived; // else departed
    bridge_number bridge;
};

// An eventfd: wakes a poll() from any thread.
class waker {
public:
    ~waker() {
        if (fd_ >= 0) {
            ::close(fd_);
        }
    }
    waker() = default;
    waker(const waker&) = delete;
    waker& operator=(const waker&) = delete;

    int fd() const { return fd_; }
    void wake() const { ::eventfd_write(fd_, 1); }
    void rest() const {
        eventfd_t count = 0;
        ::eventfd_read(fd_, &count);
    }

private:
    int fd_ = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
};

} // namespace

// The bus is read by whoever needs to, under the lock; handlers are called by run() alone, with
// no lock held.
class emulated_registry::implementation {
public:
    // Throws sdbus::Error when there is no bus.
    void listen();

    // Takes in what the bus has sent. False: the bus has gone.
    bool hear();

    // Takes in what the bus has sent up to now, for a thread that knows of a bridge already.
    void catch_up();

    std::optional<bus_event> take_event();
    bool arrival_is_next();

    // Hands the events on to the handlers, in order; arrivals that follow each other together.
    void deliver();

    // Until the bus has sent something or wake() was called.
    void wait();
    void wake() const { wake_up_.wake(); }

    emulated_bridges known;
    std::atomic<bool> stopping{false};

    // Of the notification thread alone.
    arrival_handler on_arrival;
    std::map<bridge_number, departure_handler> on_departure;
    std::deque<bridge_number> arrived;             // not taken by next() yet
    std::map<std::uint32_t, bridge_number> latest; // taken, by handle
    bool armed = false;

private:
    void announce_arrivals();
    void announce_departure(bridge_number bridge);

    void arrival(const emulated_bridge& bridge) REQUIRES(mutex_);
    void departure(std::uint32_t handle) REQUIRES(mutex_);

    waker wake_up_;
    plain_mutex mutex_;
    std::unique_ptr<emulated_bus> bus_ GUARDED_BY(mutex_);
    std::map<std::uint32_t, bridge_number> present_ GUARDED_BY(mutex_); // by handle
    std::deque<bus_event> events_ GUARDED_BY(mutex_);
};

void emulated_registry::implementation::listen() {
    const mutex_scope guard(mutex_);
    // The bus tells while it is being read, hence under the lock.
    auto bus = std::make_unique<emulated_bus>(emulated_bus::listener{
        [this](const emulated_bridge& bridge) REQUIRES(mutex_) { arrival(bridge); },
        [this](std::uint32_t handle) REQUIRES(mutex_) { departure(handle); }});
    bus->listen();
    bus_ = std::move(bus);
}

void emulated_registry::implementation::arrival(const emulated_bridge& bridge) {
    const bridge_number number = known.add(bridge);
    present_[bridge.handle] = number;
    events_.push_back({true, number});
}

void emulated_registry::implementation::departure(std::uint32_t handle) {
    events_.push_back({false, present_[handle]});
    present_.erase(handle);
}

bool emulated_registry::implementation::hear() {
    const mutex_scope guard(mutex_);
    return bus_ && bus_->process();
}

void emulated_registry::implementation::catch_up() {
    {
        const mutex_scope guard(mutex_);
        if (!bus_) {
            return;
        }
        bus_->catch_up();
    }
    wake(); // run() would not see on the socket what has been read from it here
}

std::optional<bus_event> emulated_registry::implementation::take_event() {
    const mutex_scope guard(mutex_);
    if (events_.empty()) {
        return std::nullopt;
    }
    const bus_event first = events_.front();
    events_.pop_front();
    return first;
}

bool emulated_registry::implementation::arrival_is_next() {
    const mutex_scope guard(mutex_);
    return !events_.empty() && events_.front().arrived;
}

void emulated_registry::implementation::wait() {
    sdbus::IConnection::PollData bus{};
    int timeout = 0;
    {
        const mutex_scope guard(mutex_);
        bus = bus_->poll_data();
        timeout = bus_->poll_timeout();
    }
    std::array<pollfd, 2> watched{{{bus.fd, bus.events, 0}, {wake_up_.fd(), POLLIN, 0}}};
    ::poll(watched.data(), watched.size(), timeout);
    wake_up_.rest();
}

void emulated_registry::implementation::deliver() {
    while (!stopping) {
        const std::optional<bus_event> event = take_event();
        if (!event) {
            return;
        }
        if (!event->arrived) {
            announce_departure(event->bridge);
            continue;
        }
        arrived.push_back(event->bridge);
        if (!arrival_is_next()) {
            announce_arrivals();
        }
    }
}

void emulated_registry::implementation::announce_arrivals() {
    if (std::exchange(armed, false)) {
        on_arrival(the_iterator);
    }
}

// What is known of the bridge is needed until its departure has been handled.
void emulated_registry::implementation::announce_departure(bridge_number bridge) {
    const std::uint32_t handle = known.handle_of(bridge);
    std::erase(arrived, bridge);
    if (const auto taken = latest.find(handle); taken != latest.end() && taken->second == bridge) {
        latest.erase(taken);
    }
    if (const auto handler = on_departure.extract(bridge)) {
        handler.mapped()(handle, message_terminated);
    }
    known.forget(bridge);
}

emulated_registry::emulated_registry() : inner_(std::make_unique<implementation>()) {}

emulated_registry::~emulated_registry() = default;

registry_entry emulated_registry::entry_of(std::uint32_t device) {
    if (!inner_->known.knows(device)) {
        inner_->catch_up();
    }
    return inner_->known.entry_of(device);
}

registry_entry emulated_registry::parent(registry_entry entry) {
    return inner_->known.parent(entry);
}

registry_entry emulated_registry::first_child(registry_entry entry) {
    return inner_->known.first_child(entry);
}

std::string emulated_registry::name(registry_entry entry) {
    return inner_->known.name(entry);
}

std::int64_t emulated_registry::number(registry_entry entry, std::string_view property) {
    return inner_->known.number(entry, property);
}

std::u16string emulated_registry::text(registry_entry entry, std::string_view property) {
    return inner_->known.text(entry, property);
}

bool emulated_registry::match(std::string_view registry_class) {
    if (registry_class != bridge_class) {
        print_err("no emulated device is of class " + std::string(registry_class) + "\n");
        return false;
    }
    try {
        inner_->listen();
        return true;
    } catch (const sdbus::Error& error) {
        print_err("no session bus: " + error.getMessage() +
                  "; start the program from a desktop session or under dbus-run-session\n");
        return false;
    }
}

std::uint32_t emulated_registry::add_matching_notification(arrival_handler handler) {
    inner_->on_arrival = std::move(handler);
    while (inner_->arrival_is_next()) {
        inner_->arrived.push_back(inner_->take_event()->bridge);
    }
    return the_iterator;
}

std::uint32_t emulated_registry::next(std::uint32_t iterator) {
    if (iterator != the_iterator) {
        return 0;
    }
    if (inner_->arrived.empty()) {
        inner_->armed = true;
        return 0;
    }
    const bridge_number number = inner_->arrived.front();
    inner_->arrived.pop_front();
    const std::uint32_t handle = inner_->known.handle_of(number);
    inner_->latest[handle] = number;
    return handle;
}

std::int32_t emulated_registry::add_interest_notification(std::uint32_t service,
                                                          departure_handler handler) {
    const auto taken = inner_->latest.find(service);
    if (taken == inner_->latest.end()) {
        return ENODEV;
    }
    inner_->on_departure[taken->second] = std::move(handler);
    return 0;
}

void emulated_registry::run() {
    while (!inner_->stopping) {
        const bool bus_is_there = inner_->hear();
        inner_->deliver();
        if (!bus_is_there) {
            print_err("the session bus has gone; start the program again for its enclosures\n");
            return;
        }
        if (!inner_->stopping) {
            inner_->wait();
        }
    }
}

void emulated_registry::stop() {
    inner_->stopping = true;
    inner_->wake();
}
