// What a monitor's thread and those that start, stop and await it share.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <utility>

#include "model/wake_point.h"

// A chip of krtool::chips as a scan made it. After the next scan the same place names nothing.
struct chip_place {
    std::uint64_t generation = 0;
    std::int32_t index = -1;

    bool operator==(const chip_place& other) const = default;
};

// One per start of a monitor. Any thread.
class monitor_block {
public:
    explicit monitor_block(chip_place where) : place(where) {}

    const chip_place place;
    wake_point go;   // woken when the starter has set the flags: the thread may run
    wake_point stop; // woken when the thread is to end soon: it cuts its pause short

    // Started, and neither ended nor let go: a stop waits for it and a start finds it there.
    bool awaited() const { return awaited_; }
    // Its thread runs, or is about to.
    bool living() const { return living_; }
    bool stop_asked() const { return stop_asked_; }

    void ask_stop() {
        stop_asked_ = true;
        stop.wake();
    }
    // Nobody waits for it any longer, though the thread goes on.
    void let_go() { awaited_ = false; }
    void end() {
        awaited_ = false;
        living_ = false;
    }

private:
    std::atomic<bool> awaited_{true};
    std::atomic<bool> living_{true};
    std::atomic<bool> stop_asked_{false};
};

// Ends the block with the monitor's thread, in whatever way that ends.
class monitor_life {
public:
    explicit monitor_life(std::shared_ptr<monitor_block> block) : block_(std::move(block)) {}
    ~monitor_life() { block_->end(); }
    monitor_life(const monitor_life&) = delete;
    monitor_life& operator=(const monitor_life&) = delete;

private:
    const std::shared_ptr<monitor_block> block_;
};

// A chip record's hold on its monitor; copies share it.
using monitor_handle = std::shared_ptr<monitor_block>;
