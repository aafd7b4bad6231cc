#include "tests/bench/bench_desk.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

void krenclosure(const std::string& words) {
    const std::string command = std::string(KRENCLOSURE) + " " + words + " >/dev/null";
    if (std::system(command.c_str()) != 0) { // NOLINT: fixed words of our own
        std::fprintf(stderr, "kestrel_bench: failed: krenclosure %s\n", words.c_str());
        std::exit(1); // NOLINT(concurrency-mt-unsafe): before any measuring
    }
}

std::string name_of(int number) {
    return "bench-" + std::to_string(number);
}

} // namespace

void bench_desk::listen() {
    if (!registry_.match(bridge_class)) {
        std::exit(1); // NOLINT(concurrency-mt-unsafe): no other thread yet
    }
    take(registry_.add_matching_notification([this](std::uint32_t iterator) { take(iterator); }));
    events_ = std::thread([this] { registry_.run(); });
}

bench_desk::~bench_desk() {
    if (events_.joinable()) {
        registry_.stop();
        events_.join();
    }
}

void bench_desk::take(std::uint32_t iterator) {
    while (const std::uint32_t service = registry_.next(iterator)) {
        registry_.add_interest_notification(
            service, [this](std::uint32_t departed, std::uint32_t /*message_type*/) {
                const std::lock_guard lock(mutex_);
                attached_.erase(departed);
                changed_.notify_all();
            });
        const std::lock_guard lock(mutex_);
        attached_.insert(service);
        changed_.notify_all();
    }
}

void bench_desk::have(int count) {
    if (!events_.joinable()) {
        listen();
    }
    for (; made_ < count; ++made_) {
        krenclosure("new " + name_of(made_) + " --usb --restart-delay 0");
        krenclosure("scenario " + name_of(made_) + " raid1");
    }
    for (; plugged_ < count; ++plugged_) {
        krenclosure("plug " + name_of(plugged_));
    }
    for (; plugged_ > count; --plugged_) {
        krenclosure("unplug " + name_of(plugged_ - 1));
    }
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return static_cast<int>(attached_.size()) == count; });
}

void bench_desk::await_return_of(std::uint32_t former) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] {
        return !attached_.contains(former) && static_cast<int>(attached_.size()) == plugged_;
    });
}
