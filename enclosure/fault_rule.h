// When a fault strikes, and what it does then.
#pragma once

#include "enclosure/disk_io.h"

#include <chrono>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

namespace enclosure {

enum class fault_kind {
    fail,     // the request fails
    flip,     // one byte of the first sector struck has all its bits turned round
    drop,     // a write or flush is reported done and is not made
    delay,    // the answer takes longer
    time_out, // the request is not made, and the command that it belongs to is never answered
    tear,     // a write reported done ends after some bytes of the first sector struck
};

struct fault_rule {
    fault_kind kind = fault_kind::fail;
    io_kind operation = io_kind::read;
    std::optional<int> port;     // nothing: both
    std::uint64_t first_lba = 0; // for reads and writes, as is last_lba
    std::uint64_t last_lba = std::numeric_limits<std::uint64_t>::max();
    std::uint32_t nth = 0;  // only the nth request that fits, from 1; 0: every one
    std::uint32_t byte = 0; // flip: which byte of the sector, 0 to 511; tear: how many
    std::chrono::milliseconds delay{1000}; // delay: by how much, up to an hour

    bool fits(const io_request& request) const;
};

// Throws problem when a rule makes no sense.
void check_rule(const fault_rule& rule);

// The kinds and operations by name: fail flip drop delay time-out tear, read write flush identify.
std::optional<fault_kind> fault_kind_named(std::string_view name);
std::optional<io_kind> operation_named(std::string_view name);

} // namespace enclosure
