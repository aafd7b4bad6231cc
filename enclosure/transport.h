// The way that commands take to a bridge.
#pragma once

#include "enclosure/scsi.h"

#include <chrono>
#include <cstdint>
#include <vector>

namespace enclosure {

// An answer that takes longer counts as none.
inline constexpr std::chrono::seconds answer_limit{5};

enum class delivery {
    answered,
    no_answer,     // in time; the bridge may still be there
    disturbed,     // the bus lost the command or its answer; the bridge may still be there
    not_permitted, // to this user
    gone,          // the bridge has left
};

struct exchange {
    delivery state = delivery::gone;
    scsi_reply reply;       // when answered
    bool cut_short = false; // then: the bridge took less than all of the data sent to it
};

// The handles of the bridges on the bus, in the order of their arrival.
struct bridge_listing {
    std::vector<std::uint32_t> handles;
    bool complete = true; // false: somebody could not be asked in time, there may be more
};

// Used by one thread at a time; blocks until the answer is there or its time is over. What it
// was asked for and cannot do is in its results.
class transport {
public:
    transport() = default;
    virtual ~transport() = default;
    transport(const transport&) = delete;
    transport& operator=(const transport&) = delete;

    // None when there is nobody to ask.
    virtual bridge_listing bridges() = 0;

    // Binds a handle to the bridge that has it now: answered, or why not.
    virtual delivery open(std::uint32_t handle) = 0;
    virtual void close(std::uint32_t handle) = 0;

    // Commands for an opened handle. At most `allocation` bytes come back.
    virtual exchange execute(std::uint32_t handle, byte_view cdb, byte_view data_out,
                             std::uint32_t allocation) = 0;
};

} // namespace enclosure
