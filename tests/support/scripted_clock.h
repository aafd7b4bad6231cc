// A clock that stands still.
#pragma once

#include <atomic>

#include "model/services.h"

// Any thread.
class scripted_clock final : public wall_clock {
public:
    static constexpr std::time_t start = 1709210096; // 2024-02-29 12:34:56 UTC

    void set(std::time_t now) { now_ = now; }
    std::time_t now() override { return now_; }

private:
    std::atomic<std::time_t> now_{start};
};
