// The way that commands take to a bridge.
#pragma once

#include "enclosure/scsi.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

namespace enclosure {

// An answer that takes longer counts as none.
inline constexpr std::chrono::seconds answer_limit{5};

enum class delivery {
    answered,
    no_answer, // in time; the bridge may still be there
    gone,      // the bridge has left
};

struct exchange {
    delivery state = delivery::gone;
    scsi_reply reply; // when answered
};

// Used by one thread at a time; blocks until the answer is there or its time is over. What it
// was asked for and cannot do is in its results.
class transport {
public:
    transport() = default;
    virtual ~transport() = default;
    transport(const transport&) = delete;
    transport& operator=(const transport&) = delete;

    // The handles of the bridges on the bus, in the order of their arrival; none when there is
    // nobody to ask.
    virtual std::vector<std::uint32_t> bridges() = 0;

    // Binds a handle to the bridge that has it now; false when none has.
    virtual bool open(std::uint32_t handle) = 0;
    virtual void close(std::uint32_t handle) = 0;

    // Commands for an opened handle. At most `allocation` bytes come back.
    virtual exchange execute(std::uint32_t handle, byte_view cdb, byte_view data_out,
                             std::uint32_t allocation) = 0;
};

} // namespace enclosure
