#include "app/status_display.h"

#include <charconv>

#include "app/display_text.h"
#include "model/krchip.h"
#include "util/functions.h"

namespace {

constexpr std::uint64_t sector_bytes = 512;
constexpr std::uint64_t gigabyte = 1'000'000'000;
constexpr std::uint64_t terabyte = 1'000'000'000'000;

// The half with the earlier record is the one called new, and the other way round.
std::string age_word(const krdisk& disk, const text_lookup& texts) {
    switch (disk.rebuild_role) {
    case 1:
        return texts.text("old");
    case 2:
        return texts.text("new");
    default:
        return {};
    }
}

bool can_rebuild_onto(const krchip& chip, const krdisk& source, const krdisk& target) {
    return source.raid_mode == mode_raid1 && target.present != 0 && !chip.polling &&
           chip.raid_valid == 0 && source.raid_capacity <= target.capacity;
}

disk_condition condition_of(const krchip& chip, const krdisk& disk) {
    if (disk.member_mismatch != 0) {
        return disk_condition::broken;
    }
    const bool degraded = disk.raid_mode == mode_raid1 && chip.raid_valid == 0;
    return degraded ? disk_condition::degraded : disk_condition::good;
}

std::string mode_text(const krchip& chip, const krdisk& disk, const text_lookup& texts) {
    std::string text = mode_name(disk.raid_mode, texts);
    if (disk.member_mismatch != 0) {
        text += texts.text("broken");
    }
    if (disk.raid_mode == mode_raid1 && chip.raid_valid == 0) {
        text += texts.text("degrade");
    }
    if (chip.raid_valid != 0 && chip.rebuild_pending != 0) {
        text += texts.text(disk.rebuild_mark != 0 ? "rebuild_source" : "rebuild_target");
    }
    return text;
}

// What stands around the picture of a disk that is shown for itself.
void show_single_disk(disk_view& view, const krdisk& disk, bool decimal_units) {
    view.caplabel =
        capacity_text(disk.is_member() ? disk.raid_capacity : disk.capacity, decimal_units);
    view.cappicture = true;
    if (disk.raid_mode != 0) {
        view.picmodefield = view.modefield;
    }
}

disk_view view_of_disk(const krchip& chip, std::size_t port, bool decimal_units,
                       const text_lookup& texts) {
    const krdisk& disk = chip.disks[port];
    disk_view view;
    view.present = disk.present != 0;
    if (!view.present) {
        return view;
    }
    view.condition = condition_of(chip, disk);
    view.modelfield = device_text(disk.model);
    view.serialfield = device_text(disk.serial);
    view.sizefield = size_text(disk.capacity, decimal_units);
    view.rebuilddiskfield = mode_name(disk.raid_mode, texts);
    view.rebuildbutton = can_rebuild_onto(chip, disk, chip.disks[1 - port]);
    view.oldnewlabel = age_word(disk, texts);
    view.cleardiskbutton = disk.is_member() && chip.raid_valid == 0;
    view.modefield = mode_text(chip, disk, texts);
    if (chip.raid_valid == 0) {
        show_single_disk(view, disk, decimal_units);
        view.label = texts.text(port == 0 ? "disk_1" : "disk_2");
    }
    return view;
}

// Both disks drawn as one volume, with the picture of the first.
void show_array(view_state& view, const krchip& chip, bool decimal_units,
                const text_lookup& texts) {
    view.confirmbutton = true;
    view.clearconfigbutton = true;
    view.disks[0].caplabel = capacity_text(chip.raid_capacity, decimal_units);
    view.disks[0].cappicture = true;
    view.raidmodelabel = mode_name(chip.raid_mode, texts);
    if (chip.rebuild_pending != 0) {
        view.raidmodelabel += texts.text("rebuilding");
    }
}

bool has_any_array(const krdisk& disk) {
    return disk.raid_mode >= 1 && disk.raid_mode <= 4;
}

bool orphaned(const krdisk& disk) {
    return disk.present != 0 && disk.raid1_orphan != 0;
}

void collect_alerts(view_state& view, const krchip& chip, bool both_present,
                    const text_lookup& texts) {
    const krdisk& d0 = chip.disks[0];
    const krdisk& d1 = chip.disks[1];
    view.alert_title = texts.text("attention");
    if (orphaned(d0) || orphaned(d1)) {
        view.alerts.push_back(texts.text("raid1_degrade_mode"));
    }
    if (both_present && (has_any_array(d0) || has_any_array(d1)) && chip.raid_valid == 0) {
        view.alerts.push_back(texts.text("raid_info_conflict"));
    }
}

} // namespace

view_state status_view(const krchip* chip, bool decimal_units, const text_lookup& texts) {
    view_state view;
    if (chip == nullptr) {
        return view;
    }
    const krdisk& d0 = chip->disks[0];
    const krdisk& d1 = chip->disks[1];
    const bool both_present = d0.present != 0 && d1.present != 0;
    view.blank = false;
    view.raid_valid = chip->raid_valid != 0;
    for (std::size_t port = 0; port < view.disks.size(); ++port) {
        view.disks[port] = view_of_disk(*chip, port, decimal_units, texts);
        view.showdiskguibutton = view.showdiskguibutton || view.disks[port].present;
    }
    if (view.raid_valid) {
        show_array(view, *chip, decimal_units, texts);
    }
    if (both_present && !chip->polling) {
        view.confirmbutton = true;
        view.both_idle = true;
    }
    collect_alerts(view, *chip, both_present, texts);
    view.rebuild_tab_for_choice = !view.raid_valid && both_present &&
                                  (d0.raid_mode == mode_raid1 || d1.raid_mode == mode_raid1);
    if (chip->polling) {
        view.rebuild_running = true;
        view.rebuild_source = d0.rebuild_mark != 0 ? 0 : 1;
    }
    return view;
}

std::string mode_name(std::int32_t mode, const text_lookup& texts) {
    switch (mode) {
    case mode_raid0:
        return texts.text("raid_0");
    case mode_raid1:
        return texts.text("raid_1");
    case mode_span:
        return texts.text("span");
    default:
        return texts.text("not_config");
    }
}

std::string size_text(std::uint64_t sectors, bool decimal_units) {
    constexpr int sectors_to_gibibytes = 21;
    const std::uint64_t number =
        decimal_units ? sectors * sector_bytes / gigabyte : sectors >> sectors_to_gibibytes;
    return inttostring(number) + " GB";
}

std::string capacity_text(std::uint64_t sectors, bool decimal_units) {
    const std::uint64_t bytes = sectors * sector_bytes;
    if (!decimal_units || bytes < terabyte) {
        return size_text(sectors, decimal_units);
    }
    // Of whole gigabytes, and never with the comma of the user's language.
    const std::uint64_t gigabytes = bytes / gigabyte;
    const double terabytes = static_cast<double>(gigabytes) / 1000.0;
    std::array<char, 32> text{};
    const std::to_chars_result end = std::to_chars(text.data(), text.data() + text.size(),
                                                   terabytes, std::chars_format::fixed, 2);
    return std::string(text.data(), end.ptr) + " TB";
}
