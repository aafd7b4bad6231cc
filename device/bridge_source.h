// Where bridges are heard of: one bus, or one emulation of it.
#pragma once

#include "device/known_bridges.h"

#include <poll.h>

#include <cstdint>
#include <functional>

// Tells of bridges as they come and go. One thread at a time; what happens is told during listen(),
// process() and catch_up(). A source that has nothing to listen to, or whose bus has gone, says so
// on standard error in one line.
class bridge_source {
public:
    struct listener {
        std::function<void(const bridge_identity& bridge)> arrived;
        std::function<void(std::uint32_t handle)> departed;
    };

    virtual ~bridge_source() = default;

    // Listens from now on, and tells the bridges that are there. False: there is nothing to listen
    // to, and nothing else may be called.
    virtual bool listen(listener told) = 0;

    // Takes in what has come by now; that may take 5 seconds. False: the bus has gone, and every
    // bridge with it.
    virtual bool process() = 0;

    // Takes in all that happened before this call, as far as that can be known. False as above.
    virtual bool catch_up() = 0;

    // For poll(): the descriptor and its events.
    virtual pollfd watched() const = 0;

    // For poll(): after how many milliseconds process() is next needed at the latest; -1: never.
    virtual int poll_timeout() const = 0;
};
