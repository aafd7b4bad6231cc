#include "device/source_registry.h"

#include "util/mutex.h"
#include "util/print.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <deque>
#include <map>
#include <optional>
#include <utility>

namespace {

constexpr std::uint32_t the_iterator = 1;

using bridge_number = known_bridges::number_type;

struct source_event {
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

// Of two times for poll(), where -1 is never.
int sooner(int one, int other) {
    return one < 0 || (other >= 0 && other < one) ? other : one;
}

std::vector<std::unique_ptr<bridge_source>> only(std::unique_ptr<bridge_source> source) {
    std::vector<std::unique_ptr<bridge_source>> all;
    all.push_back(std::move(source));
    return all;
}

} // namespace

// The sources are read by whoever needs to, under the lock; handlers are called by run() alone,
// with no lock held.
class source_registry::implementation {
public:
    explicit implementation(sources all) : sources_(std::move(all)) {}

    // False: no source has anything to listen to.
    bool listen();

    // Takes in what the sources have to tell. False: all of them have gone.
    bool hear();

    // Takes in what has happened up to now, for a thread that knows of a bridge already.
    void catch_up();

    std::optional<source_event> take_event();
    bool arrival_is_next();

    // Hands the events on to the handlers, in order; arrivals that follow each other together.
    void deliver();

    // Until a source has something to tell or wake() was called.
    void wait();
    void wake() const { wake_up_.wake(); }

    known_bridges known;
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

    void arrival(const bridge_identity& bridge) REQUIRES(mutex_);
    void departure(std::uint32_t handle) REQUIRES(mutex_);

    waker wake_up_;
    plain_mutex mutex_;
    bool listening_ GUARDED_BY(mutex_) = false;
    sources sources_ GUARDED_BY(mutex_);
    std::map<std::uint32_t, bridge_number> present_ GUARDED_BY(mutex_); // by handle
    std::deque<source_event> events_ GUARDED_BY(mutex_);
};

bool source_registry::implementation::listen() {
    const mutex_scope guard(mutex_);
    // A source tells while it is being read, hence under the lock.
    std::erase_if(sources_, [this](const std::unique_ptr<bridge_source>& source) REQUIRES(mutex_) {
        return !source->listen(
            {[this](const bridge_identity& bridge) REQUIRES(mutex_) { arrival(bridge); },
             [this](std::uint32_t handle) REQUIRES(mutex_) { departure(handle); }});
    });
    listening_ = !sources_.empty();
    return listening_;
}

void source_registry::implementation::arrival(const bridge_identity& bridge) {
    const bridge_number number = known.add(bridge);
    present_[bridge.handle] = number;
    if (bridge.announced) {
        events_.push_back({true, number});
    }
}

void source_registry::implementation::departure(std::uint32_t handle) {
    const bridge_number number = present_[handle];
    known.leave(number);
    events_.push_back({false, number});
    present_.erase(handle);
}

bool source_registry::implementation::hear() {
    const mutex_scope guard(mutex_);
    if (listening_) {
        std::erase_if(sources_, [](const auto& source) { return !source->process(); });
    }
    return listening_ && !sources_.empty();
}

void source_registry::implementation::catch_up() {
    {
        const mutex_scope guard(mutex_);
        if (!listening_) {
            return;
        }
        for (const std::unique_ptr<bridge_source>& source : sources_) {
            source->catch_up();
        }
    }
    wake(); // run() would not see on a descriptor what has been read from it here
}

std::optional<source_event> source_registry::implementation::take_event() {
    const mutex_scope guard(mutex_);
    if (events_.empty()) {
        return std::nullopt;
    }
    const source_event first = events_.front();
    events_.pop_front();
    return first;
}

bool source_registry::implementation::arrival_is_next() {
    const mutex_scope guard(mutex_);
    return !events_.empty() && events_.front().arrived;
}

void source_registry::implementation::wait() {
    std::vector<pollfd> watched{{wake_up_.fd(), POLLIN, 0}};
    int timeout = -1;
    {
        const mutex_scope guard(mutex_);
        for (const std::unique_ptr<bridge_source>& source : sources_) {
            watched.push_back(source->watched());
            timeout = sooner(timeout, source->poll_timeout());
        }
    }
    ::poll(watched.data(), watched.size(), timeout);
    wake_up_.rest();
}

void source_registry::implementation::deliver() {
    while (!stopping) {
        const std::optional<source_event> event = take_event();
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

void source_registry::implementation::announce_arrivals() {
    if (std::exchange(armed, false)) {
        on_arrival(the_iterator);
    }
}

// What is known of the bridge is needed until its departure has been handled.
void source_registry::implementation::announce_departure(bridge_number bridge) {
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

source_registry::source_registry(std::unique_ptr<bridge_source> source)
    : source_registry(only(std::move(source))) {}

source_registry::source_registry(sources all)
    : inner_(std::make_unique<implementation>(std::move(all))) {}

source_registry::~source_registry() = default;

registry_entry source_registry::entry_of(std::uint32_t device) {
    if (!inner_->known.knows(device)) {
        inner_->catch_up();
    }
    return inner_->known.entry_of(device);
}

registry_entry source_registry::parent(registry_entry entry) {
    return inner_->known.parent(entry);
}

registry_entry source_registry::first_child(registry_entry entry) {
    return inner_->known.first_child(entry);
}

std::string source_registry::name(registry_entry entry) {
    return inner_->known.name(entry);
}

std::int64_t source_registry::number(registry_entry entry, std::string_view property) {
    return inner_->known.number(entry, property);
}

std::u16string source_registry::text(registry_entry entry, std::string_view property) {
    return inner_->known.text(entry, property);
}

std::vector<reached_bridge> source_registry::reached() {
    std::vector<reached_bridge> bridges = inner_->known.with_nodes();
    for (reached_bridge& bridge : bridges) {
        bridge.permitted = ::access(bridge.node.c_str(), R_OK | W_OK) == 0;
    }
    return bridges;
}

bool source_registry::match(std::string_view registry_class) {
    if (registry_class != bridge_class) {
        print_err("no device is of class " + std::string(registry_class) + "\n");
        return false;
    }
    return inner_->listen();
}

std::uint32_t source_registry::add_matching_notification(arrival_handler handler) {
    inner_->on_arrival = std::move(handler);
    while (inner_->arrival_is_next()) {
        inner_->arrived.push_back(inner_->take_event()->bridge);
    }
    return the_iterator;
}

std::uint32_t source_registry::next(std::uint32_t iterator) {
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

std::int32_t source_registry::add_interest_notification(std::uint32_t service,
                                                        departure_handler handler) {
    const auto taken = inner_->latest.find(service);
    if (taken == inner_->latest.end()) {
        return ENODEV;
    }
    inner_->on_departure[taken->second] = std::move(handler);
    return 0;
}

void source_registry::run() {
    while (!inner_->stopping) {
        const bool someone_is_there = inner_->hear();
        inner_->deliver();
        if (!someone_is_there) {
            return;
        }
        if (!inner_->stopping) {
            inner_->wait();
        }
    }
}

void source_registry::stop() {
    inner_->stopping = true;
    inner_->wake();
}
