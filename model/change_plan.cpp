#include "model/change_plan.h"

#include "model/krchip.h"

namespace {

array_change carried_out(array_change what, int mode) {
    return what == array_change::create && !is_array_mode(mode) ? array_change::clear_array : what;
}

disk_fate fate_of_wiped(bool wiped) {
    return wiped ? disk_fate::all_lost : disk_fate::untouched;
}

disk_fate fate_in_rebuild(const krdisk& source, bool is_source) {
    if (source.raid_mode != mode_raid1) {
        return disk_fate::untouched; // the chip refuses
    }
    return is_source ? disk_fate::read : disk_fate::overwritten;
}

disk_fate fate_of(array_change what, const krchip& chip, std::size_t port) {
    switch (what) {
    case array_change::create:
        return disk_fate::all_lost;
    case array_change::clear_array:
        return chip.raid_mode == mode_raid1 ? disk_fate::keeps_data : disk_fate::all_lost;
    case array_change::clear_disk0:
        return fate_of_wiped(port == 0);
    case array_change::clear_disk1:
        return fate_of_wiped(port == 1);
    case array_change::rebuild0to1:
        return fate_in_rebuild(chip.disks[0], port == 0);
    case array_change::rebuild1to0:
        return fate_in_rebuild(chip.disks[1], port == 1);
    }
    return disk_fate::untouched;
}

void compare_with_source(planned_disk& target, const krdisk& source) {
    const std::uint64_t needed = source.raid_capacity;
    if (needed > target.capacity) {
        target.missing_sectors = needed - target.capacity;
    } else {
        target.record_inside_mirror = target.capacity - needed < metadata_distance;
    }
}

planned_disk plan_disk(array_change what, const krchip& chip, std::size_t port) {
    const krdisk& disk = chip.disks[port];
    planned_disk plan;
    plan.present = disk.present != 0;
    if (!plan.present) {
        return plan;
    }
    plan.model = disk.model;
    plan.serial = disk.serial;
    plan.capacity = disk.capacity;
    plan.identify_model_raw = disk.identify_model_raw;
    plan.identify_serial_raw = disk.identify_serial_raw;
    plan.fate = fate_of(what, chip, port);
    if (plan.fate == disk_fate::untouched) {
        return plan;
    }
    plan.larger_than_used = disk.lba48_sectors > disk.capacity;
    plan.copy_unfinished =
        plan.fate == disk_fate::keeps_data && chip.rebuild_pending != 0 && disk.rebuild_mark == 0;
    plan.foreign_sectors = disk.logical_sector_bytes != sector_size;
    if (plan.fate == disk_fate::overwritten) {
        compare_with_source(plan, chip.disks[1 - port]);
    }
    return plan;
}

} // namespace

change_plan plan_change(array_change what, int mode, const krchip* chip,
                        const std::string& enclosure, const std::vector<volume_use>& uses) {
    change_plan plan;
    plan.what = carried_out(what, mode);
    plan.mode = mode;
    plan.enclosure = enclosure;
    if (chip == nullptr) {
        return plan;
    }
    plan.has_chip = true;
    plan.uses = uses;
    plan.controller = chip->identity;
    for (std::size_t port = 0; port < plan.disks.size(); ++port) {
        plan.disks[port] = plan_disk(plan.what, *chip, port);
    }
    return plan;
}

bool still_holds(const change_plan& confirmed, const krchip* chip,
                 const std::vector<volume_use>& uses) {
    return plan_change(confirmed.what, confirmed.mode, chip, confirmed.enclosure, uses) ==
           confirmed;
}
