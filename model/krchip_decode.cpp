// What the two records together say about the array.
#include <cstring>

#include "model/krchip.h"
#include "model/krtool.h"

namespace {

bool same_mode_and_named(const krdisk& disk, const krdisk& partner) {
    return partner.present != 0 && partner.raid_mode == disk.raid_mode && disk.names(partner);
}

// A mirror member's partner is not checked: either half stands for the whole.
bool mismatched(const krdisk& disk, const krdisk& partner) {
    const bool striped = disk.raid_mode == mode_raid0 || disk.raid_mode == mode_span;
    return disk.present != 0 && striped && !same_mode_and_named(disk, partner);
}

bool orphaned(const krdisk& disk, const krdisk& partner) {
    return disk.present != 0 && disk.raid_mode == mode_raid1 &&
           (partner.present == 0 || !partner.is_member());
}

// Mode 3 passes although it is no array that anybody makes; the display names it as none.
bool forms_array(const krdisk& disk, const krdisk& partner) {
    return disk.present != 0 && partner.present != 0 && disk.raid_mode >= 1 &&
           disk.raid_mode <= 4 && disk.raid_mode == partner.raid_mode &&
           disk.member_mismatch == 0 && partner.member_mismatch == 0;
}

} // namespace

void krchip::read_raid_combined_info() {
    const lock_scope lock(j.records);
    krdisk& d0 = disks[0];
    krdisk& d1 = disks[1];
    d0.member_mismatch = mismatched(d0, d1) ? 1 : 0;
    d1.member_mismatch = mismatched(d1, d0) ? 1 : 0;
    d0.raid1_orphan = orphaned(d0, d1) ? 1 : 0;
    d1.raid1_orphan = orphaned(d1, d0) ? 1 : 0;
    rebuild_possible = d0.present != 0 && d1.present != 0 &&
                               (d0.raid_mode == mode_raid1 || d1.raid_mode == mode_raid1)
                           ? 1
                           : 0;
    d0.rebuild_role = 0;
    d1.rebuild_role = 0;
    raid_valid = 0;
    if (!forms_array(d0, d1)) {
        return;
    }
    const bool one_marked = d0.rebuild_mark + d1.rebuild_mark == 1;
    // Year first and zero-padded: the order of the bytes is the order in time.
    const int order = std::memcmp(d0.raid_time.data(), d1.raid_time.data(), raid_time_size);
    if (!one_marked && d0.raid_mode == mode_raid1 && order != 0) {
        d0.rebuild_role = order > 0 ? 1 : 2;
        d1.rebuild_role = order > 0 ? 2 : 1;
        return;
    }
    raid_capacity = d0.raid_capacity;
    raid_mode = d0.raid_mode;
    raid_valid = 1;
    rebuild_pending = one_marked ? 1 : 0;
    if (one_marked) {
        polling = true;
    }
}
