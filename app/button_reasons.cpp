#include "app/button_reasons.h"

#include "app/display_text.h"
#include "model/krchip.h"
#include "util/functions.h"

namespace {

std::string reason_of_array(std::int32_t mode, const text_lookup& texts) {
    if (!is_array_mode(mode)) {
        return texts.text("ui_advice_unknown");
    }
    return texts.text(mode == mode_raid1 ? "ui_reason_same_data" : "ui_reason_other_array");
}

std::string reason_against_create(const krchip& chip, const text_lookup& texts) {
    const bool first = chip.disks[0].present != 0;
    const bool second = chip.disks[1].present != 0;
    if (!first && !second) {
        return texts.text("ui_reason_no_disks");
    }
    if (!first || !second) {
        return filled(texts.text("ui_reason_bay_empty"), {number_of(first ? 1 : 0)});
    }
    if (chip.polling) {
        return texts.text("ui_reason_rebuild_running");
    }
    return texts.text("ui_reason_choose_kind");
}

std::string reason_against_delete(const krchip& chip, const text_lookup& texts) {
    if (chip.raid_valid != 0) {
        return {};
    }
    for (const krdisk& disk : chip.disks) {
        if (disk.present != 0 && disk.is_member()) {
            return texts.text("ui_reason_incomplete");
        }
    }
    return texts.text("ui_reason_no_array");
}

std::string reason_against_rebuild(const krchip& chip, std::size_t port, const text_lookup& texts) {
    const krdisk& source = chip.disks[port];
    const krdisk& target = chip.disks[1 - port];
    if (chip.polling || (chip.raid_valid != 0 && chip.rebuild_pending != 0)) {
        return texts.text("ui_reason_rebuild_running");
    }
    if (chip.raid_valid != 0) {
        return reason_of_array(chip.raid_mode, texts);
    }
    if (source.present == 0 || source.raid_mode != mode_raid1) {
        return filled(texts.text("ui_reason_no_mirror"), {number_of(port)});
    }
    if (target.present == 0) {
        return filled(texts.text("ui_reason_no_target"), {number_of(1 - port)});
    }
    if (source.raid_capacity > target.capacity) {
        return filled(
            texts.text(port == 0 ? "ui_too_small_for_rebuild_2" : "ui_too_small_for_rebuild_1"),
            {inttostring(source.raid_capacity - target.capacity)});
    }
    return {};
}

} // namespace

button_reasons reasons_of(const krchip& chip, const text_lookup& texts) {
    return {reason_against_create(chip, texts),
            reason_against_delete(chip, texts),
            {reason_against_rebuild(chip, 0, texts), reason_against_rebuild(chip, 1, texts)}};
}

button_reasons reasons_while_restarting(const text_lookup& texts) {
    const std::string why =
        filled(texts.text("ui_reason_restarting"), {texts.text("refresh_button")});
    return {why, why, {why, why}};
}
