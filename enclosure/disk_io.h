// What passes between the chip and the disks in its bays.
#pragma once

#include "enclosure/units.h"

#include <cstdint>

namespace enclosure {

enum class io_kind { read, write, flush, identify };

// read: `data` receives `count` sectors; without room, they are only seen to be readable.
// write: `data` holds `count` sectors; without data, they become zero.
// identify: `data` receives 512 bytes. flush: nothing else matters.
struct io_request {
    io_kind kind;
    int port;
    std::uint64_t lba = 0;
    std::uint64_t count = 0;
    byte_room data = {};
};

class disk_io {
public:
    disk_io() = default;
    virtual ~disk_io() = default;
    disk_io(const disk_io&) = delete;
    disk_io& operator=(const disk_io&) = delete;

    // False: no disk there, outside the disk, or failed.
    virtual bool perform(const io_request& request) = 0;
};

} // namespace enclosure
