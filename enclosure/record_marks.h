// The marks that the chip itself sets in the records of a mirror, on the disks. One thread at a
// time.
#pragma once

#include "enclosure/disk_io.h"

#include <cstdint>

namespace enclosure {

// Each changes the mirror record at `lba` of the disk on `port` (0 or 1) and flushes it. False: it
// cannot be read, written or flushed, or the host has taken it away, and with it the mirror.

// Data is going to be written to the member without its partner.
bool set_alone_mark(disk_io& path, int port, std::uint64_t lba);

// The partner has the same data again.
bool clear_alone_mark(disk_io& path, int port, std::uint64_t lba);

// Its partner carries the mark of a copy's source: with both, no copy is asked for.
bool set_source_mark(disk_io& path, int port, std::uint64_t lba);

} // namespace enclosure
