// How fast a rebuild goes.
#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <optional>

// What the latest readings say; nothing until they say it steadily.
struct pace_view {
    std::optional<std::uint64_t> bytes_per_second;
    std::optional<std::chrono::seconds> left;
    bool stalled = false;
};

// Keeps the readings of the last minute. One thread at a time.
class copy_pace {
public:
    using time_point = std::chrono::steady_clock::time_point;

    // A disk that tries a bad place again may take so long over it.
    static constexpr std::chrono::seconds stalled_after{20};

    // A reading: `end` and `current` count sectors of 512 bytes. Readings of another copy, or
    // that go back, begin anew; `now` never goes back.
    pace_view note(std::uint64_t end, std::uint64_t current, time_point now);
    void forget() { readings_.clear(); }

private:
    struct reading {
        std::uint64_t current;
        time_point when;
    };

    void drop_old(time_point now);
    bool stands_still(time_point now) const;

    std::uint64_t end_ = 0;
    std::deque<reading> readings_;
};
