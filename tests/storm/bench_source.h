// Bridges of the enclosures in this process, as the registry hears of them.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <optional>
#include <thread>

#include "device/bridge_source.h"
#include "enclosure/in_process_bench.h"
#include "util/mutex.h"

class bench_source final : public bridge_source {
public:
    // Hears of everything that happens on the bench from now on.
    explicit bench_source(enclosure::in_process_bench& bench);
    ~bench_source() override;
    bench_source(const bench_source&) = delete;
    bench_source& operator=(const bench_source&) = delete;

    // Blocks while more than `most` events have not been dealt with. Any thread.
    void await_backlog(std::uint64_t most);

    bool listen(listener told) override;
    bool process() override;
    bool catch_up() override { return process(); }
    pollfd watched() const override;
    int poll_timeout() const override { return -1; }

private:
    void happened(const enclosure::in_process_bench::bus_event& event);
    std::optional<enclosure::in_process_bench::bus_event> take();
    void wake() const;
    void tell(const enclosure::in_process_bench::bus_event& event);

    enclosure::in_process_bench& bench_;
    const int wake_;
    listener told_;
    plain_mutex mutex_;
    std::condition_variable_any caught_up_;
    std::thread::id notification_ GUARDED_BY(mutex_);
    std::uint64_t happened_ GUARDED_BY(mutex_) = 0; // so many events
    std::uint64_t taken_ GUARDED_BY(mutex_) = 0;
    std::uint64_t dealt_with_ GUARDED_BY(mutex_) = 0;
    std::deque<enclosure::in_process_bench::bus_event> events_ GUARDED_BY(mutex_);
};
