// Where the sectors of a volume lie on the disks.
#pragma once

#include "enclosure/volume.h"

#include <cstdint>

namespace enclosure {

// All of it: any thread; no errors, if what is said of the arguments holds.

// Sectors of a stripe that lie together on one disk: 64 KiB.
inline constexpr std::uint64_t stripe_chunk = 128;

struct volume_layout {
    array_kind kind = array_kind::none;
    std::uint64_t sectors = 0;    // of the volume; 0: there is none
    int first = 0;                // port of the first member, or of the disk that is read
    std::uint64_t first_area = 0; // span: sectors on the first member
};

// Sectors that lie together on one disk, outside the last 16 sectors of a member.
struct layout_piece {
    int port = 0;
    std::uint64_t lba = 0; // on the disk
    std::uint64_t count = 0;
};

// The layout of `shown`, which is what decide_volume made of the same views. A mirror is laid out
// on the member that is read: the copy's source, the newer half, the only one, or port 0's.
volume_layout layout_of(const port_views& views, const volume& shown);

// The piece that begins at sector `lba` of the volume, at most `limit` sectors of it. The range
// lies within the volume and is not empty.
layout_piece piece_at(const volume_layout& layout, std::uint64_t lba, std::uint64_t limit);

} // namespace enclosure
