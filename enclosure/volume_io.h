// Reading and writing the volume that the chip presents.
#pragma once

#include "enclosure/fault_stack.h"
#include "enclosure/mirror_copy.h"
#include "enclosure/volume_layout.h"

#include <array>
#include <cstdint>
#include <optional>

namespace enclosure {

enum class written {
    done,
    by_one_member, // done, and the other member of the mirror is out of it by its record
    failed,        // part of it may have been written
};

// One thread at a time. `path`, which leads to the disks, and `copy`, the chip's, outlive it.
class volume_io {
public:
    volume_io(fault_stack& path, mirror_copy& copy) : path_(path), copy_(copy) {}

    // What is read and written from now on: `shown` is what decide_volume made of `views`.
    void present(const port_views& views, const volume& shown);

    // The sectors from `lba` on, all within the volume. Without room for data they are only seen
    // to be readable. A mirror is read from the other member when the first one fails and the
    // other has the same data. False: not all of them could be read.
    bool read(std::uint64_t lba, std::uint64_t count, byte_room data);

    // As many sectors as there are in `data`, all within the volume. A mirror is written on both
    // members, wherever a copy stands; one that has a single member to write to is first marked in
    // that member's record.
    written write(std::uint64_t lba, byte_room data);

    // The host has written another mirror record to the disk on the port, 0 or 1: a mark may have
    // gone with the former one.
    void record_written(int port);

private:
    bool read_piece(const layout_piece& piece, byte_room data);
    bool other_has(const layout_piece& piece) const;
    bool write_pieces(std::uint64_t lba, byte_room data);
    written write_while_copying(std::uint64_t lba, byte_room data);
    written write_both(std::uint64_t lba, byte_room data);
    bool write_member(int port, std::uint64_t lba, byte_room data);
    bool mark_alone(int port);

    fault_stack& path_;
    mirror_copy& copy_;
    volume_layout layout_;
    volume_state state_ = volume_state::no_disk;
    std::array<std::optional<std::uint64_t>, ports> records_; // where they are
    bool marked_ = false; // the only member that is written: its record is later than the partner's
};

} // namespace enclosure
