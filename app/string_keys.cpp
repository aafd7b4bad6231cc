// The keys of the localised texts.
#include <array>

#include "app/string_table.h"

namespace {

constexpr std::array<std::string_view, 43> designed = {
    "create_raid",
    "delete_raid",
    "raid_configuration",
    "configuration_tab",
    "rebuild",
    "refresh_button",
    "raid_status",
    "rebuild_progress",
    "disk_1",
    "disk_2",
    "SN",
    "mode",
    "phy_size",
    "not_config",
    "raid_0",
    "raid_1",
    "span",
    "broken",
    "degrade",
    "new",
    "old",
    "rebuild_source",
    "rebuild_target",
    "rebuilding",
    "raid1_degrade_mode",
    "raid_info_conflict",
    "attention",
    "ok",
    "cancel",
    "warning",
    "error",
    "two_raid1_disks_for_rebuild",
    "all_data_lost",
    "raid_create_error",
    "raid_delete_error",
    "raid_info_delete_error",
    "disk1_to_disk2",
    "disk2_to_disk1",
    "rebuild_error",
    "rebuild_finished",
    "hot_swap",
    "error_open_device",
    "device",
};

constexpr std::array<std::string_view, 41> of_the_window = {
    "controllers",
    "system_information",
    "devices",
    "minimise",
    "close",
    "clear",
    "clear_disk_1",
    "clear_disk_2",
    "restart_enclosure",
    "working",
    "empty_bay",
    "raid_0_meaning",
    "raid_1_meaning",
    "span_meaning",
    "not_config_meaning",
    "no_enclosure",
    "no_enclosure_advice",
    "scanning",
    "scanning_advice",
    "rebuild_hint",
    "plan_create",
    "plan_delete",
    "plan_wipe_disk_1",
    "plan_wipe_disk_2",
    "plan_copy_disk_1",
    "plan_copy_disk_2",
    "plan_untouched",
    "plan_all_lost",
    "plan_keeps_data",
    "plan_read",
    "plan_overwritten",
    "plan_overwrites",
    "plan_too_small",
    "plan_record_inside_mirror",
    "plan_larger_than_used",
    "plan_foreign_sectors",
    "copy_failed",
    "too_small_for_rebuild_1",
    "too_small_for_rebuild_2",
    "restart_named",
    "plan_copy_unfinished",
};

} // namespace

std::span<const std::string_view> designed_keys() {
    return designed;
}

std::span<const std::string_view> window_keys() {
    return of_the_window;
}
