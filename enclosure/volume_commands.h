// The fields of commands that address sectors of the volume. Any thread; no errors. The commands
// have the length of their group.
#pragma once

#include "enclosure/units.h"

#include <cstdint>

namespace enclosure {

// Sectors that one command may read or write: 4 MiB.
inline constexpr std::uint64_t most_sectors_at_once = 8192;

struct block_range {
    std::uint64_t lba = 0;
    std::uint64_t count = 0;
};

// Of a command of 10 or 16 bytes.
block_range range_in(byte_view cdb);

// READ and WRITE ask for protection information, which the volume has none of.
bool asks_for_protection(byte_view cdb);

// WRITE: its data is to be lasting before it is reported done.
bool forces_unit_access(byte_view cdb);

// VERIFY: the sectors are to be compared with data that comes along.
bool compares_bytes(byte_view cdb);

} // namespace enclosure
