// Two disks with any IDENTIFY blocks and any records: what the model makes of the pair, what it
// would do about it, and that the chip sees no array broken that the model calls valid.
#include "enclosure/metadata.h"
#include "enclosure/volume.h"
#include "model/change_plan.h"
#include "model/krchip.h"
#include "model/krtool.h"

#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/target.h"

#include <algorithm>
#include <array>

namespace {

using block = std::array<std::uint8_t, sector_size>;

struct one_disk {
    bool present = false;
    block identify{};
    block record{};
};

using both_disks = std::array<one_disk, 2>;

template<std::size_t Size>
void copy_part(const block& from, std::size_t at, block& to, std::size_t where) {
    std::copy_n(from.begin() + static_cast<std::ptrdiff_t>(at), Size,
                to.begin() + static_cast<std::ptrdiff_t>(where));
}

// Random records name nobody who is there, and are no pair.
void introduce(one_disk& disk, const one_disk& partner) {
    constexpr std::size_t serial_at = 20; // of an IDENTIFY block
    constexpr std::size_t model_at = 54;
    copy_part<serial_size>(partner.identify, serial_at, disk.record, raid_info::serial_offset);
    copy_part<model_size>(partner.identify, model_at, disk.record, raid_info::model_offset);
}

both_disks disks_from(byte_source& source) {
    constexpr std::uint8_t integrity = 0xA5;
    const std::uint8_t how = source.byte();
    both_disks disks;
    for (std::size_t port = 0; port < disks.size(); ++port) {
        disks[port].present = (how >> port & 1) != 0;
        disks[port].identify = source.block<sector_size>();
        disks[port].identify[510] = integrity;
        disks[port].record = source.block<sector_size>();
    }
    if ((how & 4) != 0) {
        introduce(disks[0], disks[1]);
        introduce(disks[1], disks[0]);
    }
    if ((how & 8) != 0) {
        copy_part<raid_time_size>(disks[0].record, raid_info::time_offset, disks[1].record,
                                  raid_info::time_offset);
    }
    return disks;
}

krchip model_of(const both_disks& disks) {
    krchip chip;
    for (std::size_t port = 0; port < disks.size(); ++port) {
        if (!disks[port].present) {
            continue;
        }
        krdisk& disk = chip.disks[port];
        disk.present = 1;
        disk.initialize(reinterpret_cast<const char*>(disks[port].identify.data()));
        raid_info sector;
        sector.bytes = disks[port].record;
        const bool readable = enclosure::record_address(disk.capacity).has_value();
        disk.take_record(sector, readable && sector.has_signature());
    }
    chip.read_raid_combined_info();
    return chip;
}

enclosure::port_views chip_view_of(const both_disks& disks) {
    enclosure::port_views views;
    for (std::size_t port = 0; port < disks.size(); ++port) {
        if (!disks[port].present) {
            continue;
        }
        const std::uint64_t sectors = enclosure::identify_sectors(disks[port].identify);
        views[port] = {true, sectors, enclosure::identity_of(disks[port].identify), std::nullopt};
        if (enclosure::record_address(sectors)) {
            views[port].record = enclosure::read_record(disks[port].record);
        }
    }
    return views;
}

// The chip answers a single mark that counts no more before anybody reads the records.
both_disks as_the_chip_leaves(both_disks disks) {
    if (const auto target = enclosure::target_written_alone(chip_view_of(disks))) {
        enclosure::mark_source(disks[static_cast<std::size_t>(*target)].record);
    }
    return disks;
}

bool is_mirror_member(const krdisk& disk) {
    return disk.present != 0 && disk.raid_mode == mode_raid1;
}

void check_disk(const krchip& chip, std::size_t port) {
    const krdisk& disk = chip.disks[port];
    const krdisk& partner = chip.disks[1 - port];
    const bool accompanied = partner.present != 0 && partner.is_member();
    require((disk.raid1_orphan != 0) == (is_mirror_member(disk) && !accompanied),
            "an orphan is a mirror member beside no member");
    require(disk.member_mismatch == 0 || (disk.present != 0 && disk.is_member()),
            "only a member can have another partner than it names");
    require(disk.rebuild_role <= 2, "a role is none, 1 or 2");
}

void check_array(const krchip& chip) {
    const krdisk& d0 = chip.disks[0];
    const krdisk& d1 = chip.disks[1];
    check_disk(chip, 0);
    check_disk(chip, 1);
    const bool one_marked = d0.rebuild_mark + d1.rebuild_mark == 1;
    const std::uint32_t roles = d0.rebuild_role + d1.rebuild_role;
    require(roles == 0 || roles == 3, "both halves of a diverged mirror have a role, or none has");
    require(roles == 0 || (is_mirror_member(d0) && is_mirror_member(d1) && chip.raid_valid == 0),
            "only a mirror that is no array has roles");
    if (chip.raid_valid == 0) {
        return;
    }
    require(d0.present != 0 && d1.present != 0 && d0.raid_mode == d1.raid_mode,
            "an array has two disks of its kind");
    require(d0.member_mismatch + d1.member_mismatch + d0.raid1_orphan + d1.raid1_orphan == 0,
            "an array has no member that belongs elsewhere");
    require(chip.raid_mode == d0.raid_mode && chip.raid_capacity == d0.raid_capacity,
            "an array is as its first disk says");
    require((chip.rebuild_pending != 0) == one_marked, "a rebuild has exactly one source");
}

// A volume without size is one that the chip shows nobody.
void check_against_chip(const krchip& chip, const enclosure::port_views& views) {
    const enclosure::volume seen = enclosure::decide_volume(views);
    const auto order = enclosure::decide_copy(views);
    if (order) {
        const auto source = static_cast<std::size_t>(order->source);
        require(chip.raid_valid != 0 && chip.rebuild_pending != 0 &&
                    chip.disks[source].rebuild_mark != 0,
                "the program knows of every copy that the chip makes, and of its direction");
    }
    if (chip.raid_valid == 0 || !is_array_mode(chip.raid_mode)) {
        require(seen.sectors == 0 || seen.state != enclosure::volume_state::in_order,
                "the chip has no array in order that the program does not know");
        return;
    }
    require(static_cast<int>(seen.kind) == chip.raid_mode, "program and chip see the same kind");
    require(seen.state != enclosure::volume_state::diverged,
            "the program calls no mirror valid whose halves differ");
    require(seen.state != enclosure::volume_state::broken || seen.sectors == 0,
            "a broken array is not shown");
}

void check_plans(const krchip& chip) {
    constexpr std::array changes = {array_change::create,      array_change::clear_array,
                                    array_change::clear_disk0, array_change::clear_disk1,
                                    array_change::rebuild0to1, array_change::rebuild1to0};
    for (const array_change what : changes) {
        for (const int mode : {0, mode_raid0, mode_raid1, mode_span}) {
            const change_plan plan = plan_change(what, mode, &chip, "box", {});
            require(still_holds(plan, &chip, {}), "a plan holds while nothing changes");
            require(!still_holds(plan, &chip, {{volume_use_kind::mounted, "sdb", "/mnt"}}),
                    "a plan does not hold once the volume is used");
            for (std::size_t port = 0; port < plan.disks.size(); ++port) {
                require(plan.disks[port].present == (chip.disks[port].present != 0),
                        "a plan names the disks that are there");
                require(plan.disks[port].present || plan.disks[port].fate == disk_fate::untouched,
                        "nothing happens to a disk that is not there");
            }
        }
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    byte_source source(data, size);
    const both_disks disks = disks_from(source);
    const gate_scope work(j.gate);
    const krchip chip = model_of(disks);
    check_array(chip);
    check_plans(chip);
    const both_disks left = as_the_chip_leaves(disks);
    check_against_chip(model_of(left), chip_view_of(left));
    return 0;
}
