// Which volume the chip makes of its two disks.
#pragma once

#include "enclosure/metadata.h"

#include <array>
#include <optional>
#include <string_view>

namespace enclosure {

// All of it: any thread, no errors; records may say anything.

// A port as the chip knows it.
struct port_view {
    bool present = false;
    std::uint64_t sectors = 0;
    raw_identity identity;
    std::optional<array_record> record;

    bool is(array_kind kind) const { return present && record && record->kind == kind; }

    // Sectors that an array may use: all but the disk's last 16. 0 for a smaller disk.
    std::uint64_t data_area() const;
};

using port_views = std::array<port_view, ports>;

enum class volume_state {
    no_disk,  // nothing to present
    plain,    // a disk that is in no array
    in_order, // array with both members
    copying,  // mirror with one member to be copied to the other
    degraded, // mirror with one member
    diverged, // mirror whose members were written at different times
    broken,   // stripe or span without its partner, two arrays' members, or nothing in size
};

struct volume {
    array_kind kind = array_kind::none;
    volume_state state = volume_state::no_disk;
    std::uint64_t sectors = 0; // presented to the host; 0: not ready

    bool operator==(const volume&) const = default;
};

// Never larger than the members' data areas hold, whatever their records say.
volume decide_volume(const port_views& views);

// The copy that the metadata ask for: from the only marked member of a mirror to the other.
struct copy_order {
    int source = 0;
    std::uint64_t sectors = 0; // from 0 on, short of either disk's last 16

    bool operator==(const copy_order&) const = default;
};

// Nothing when no copy is asked for or there is nothing to copy.
std::optional<copy_order> decide_copy(const port_views& views);

// The target of a copy that the records still ask for although it was written alone since: with
// that, the order has lost its meaning. Nothing when there is none.
std::optional<int> target_written_alone(const port_views& views);

// Which two disks a copy is between, and when their records were written: another pair, or the
// same one with new records, has another copy. All zero for a port without a disk in an array.
struct copy_pair {
    struct member {
        raw_identity disk;
        std::array<std::uint8_t, 16> stamp{};

        bool operator==(const member&) const = default;
    };
    std::array<member, ports> members;

    bool operator==(const copy_pair&) const = default;
};

copy_pair pair_of(const port_views& views);

// "RAID 1", "in order" and the like.
std::string_view name_of(array_kind kind);
std::string_view name_of(volume_state state);

} // namespace enclosure
