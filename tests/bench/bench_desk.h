// Emulated enclosures of the host service, plugged in as many as a figure asks for.
#pragma once

#include <condition_variable>
#include <mutex>
#include <set>
#include <thread>

#include "device/emulated_bus.h"
#include "device/source_registry.h"

// Follows the session bus from the first have() to its own end. One thread.
class bench_desk {
public:
    bench_desk() = default;
    ~bench_desk();
    bench_desk(const bench_desk&) = delete;
    bench_desk& operator=(const bench_desk&) = delete;

    source_registry& registry() { return registry_; }

    // Makes and plugs mirrors, or unplugs some, and returns when the registry knows just `count`.
    // Ends the process with a line on standard error when there is no bus.
    void have(int count);

    // Returns when the registry knows another bridge in place of that one, after a restart.
    void await_return_of(std::uint32_t former);

private:
    void listen();
    void take(std::uint32_t iterator);

    source_registry registry_{std::make_unique<emulated_bus>()};
    std::thread events_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::set<std::uint32_t> attached_;
    int made_ = 0;
    int plugged_ = 0;
};
