#include "app/plan_text.h"

#include "app/display_text.h"
#include "app/status_display.h"
#include "util/functions.h"

namespace {

std::string heading_of(const change_plan& plan, const text_lookup& texts) {
    switch (plan.what) {
    case array_change::create:
        return filled(texts.text("ui_plan_create"), {mode_name(plan.mode, texts)});
    case array_change::clear_array:
        return texts.text("ui_plan_delete");
    case array_change::clear_disk0:
        return texts.text("ui_plan_wipe_disk_1");
    case array_change::clear_disk1:
        return texts.text("ui_plan_wipe_disk_2");
    case array_change::rebuild0to1:
        return texts.text("ui_plan_copy_disk_1");
    case array_change::rebuild1to0:
        return texts.text("ui_plan_copy_disk_2");
    }
    return {};
}

const char* fate_key(disk_fate fate) {
    switch (fate) {
    case disk_fate::untouched:
        return "ui_plan_untouched";
    case disk_fate::all_lost:
        return "ui_plan_all_lost";
    case disk_fate::keeps_data:
        return "ui_plan_keeps_data";
    case disk_fate::read:
        return "ui_plan_read";
    case disk_fate::overwritten:
        return "ui_plan_overwritten";
    }
    return "";
}

fate_tone tone_of(disk_fate fate) {
    switch (fate) {
    case disk_fate::all_lost:
    case disk_fate::overwritten:
        return fate_tone::lost;
    case disk_fate::keeps_data:
    case disk_fate::read:
        return fate_tone::kept;
    case disk_fate::untouched:
        break;
    }
    return fate_tone::calm;
}

std::vector<std::string> warnings_of(const planned_disk& disk, const text_lookup& texts) {
    std::vector<std::string> lines;
    if (disk.missing_sectors != 0) {
        lines.push_back(
            filled(texts.text("ui_plan_too_small"), {inttostring(disk.missing_sectors)}));
    }
    if (disk.record_inside_mirror) {
        lines.push_back(texts.text("ui_plan_record_inside_mirror"));
    }
    if (disk.copy_unfinished) {
        lines.push_back(texts.text("ui_plan_copy_unfinished"));
    }
    if (disk.larger_than_used) {
        lines.push_back(texts.text("ui_plan_larger_than_used"));
    }
    if (disk.foreign_sectors) {
        lines.push_back(texts.text("ui_plan_foreign_sectors"));
    }
    return lines;
}

plan_card card_of(const planned_disk& disk, const char* bay, bool decimal_units,
                  const text_lookup& texts) {
    plan_card card;
    card.bay = texts.text(bay);
    card.present = disk.present;
    card.fate = texts.text(fate_key(disk.fate));
    card.tone = tone_of(disk.fate);
    if (!disk.present) {
        card.model = texts.text("ui_empty_bay");
        return card;
    }
    card.size = capacity_text(disk.capacity, decimal_units);
    card.model = device_text(disk.model);
    card.serial = texts.text("SN") + " " + device_text(disk.serial);
    card.warnings = warnings_of(disk, texts);
    return card;
}

plan_arrow arrow_of(const change_plan& plan) {
    if (plan.disks[1].fate == disk_fate::overwritten) {
        return plan_arrow::to_disk2;
    }
    return plan.disks[0].fate == disk_fate::overwritten ? plan_arrow::to_disk1 : plan_arrow::none;
}

void add_words(std::string& line, const std::string& words) {
    if (!words.empty()) {
        line += ", " + words;
    }
}

} // namespace

plan_view describe(const change_plan& plan, bool decimal_units, const text_lookup& texts) {
    plan_view view;
    view.heading = heading_of(plan, texts);
    view.enclosure = plan.enclosure;
    view.cards[0] = card_of(plan.disks[0], "disk_1", decimal_units, texts);
    view.cards[1] = card_of(plan.disks[1], "disk_2", decimal_units, texts);
    view.arrow = arrow_of(plan);
    if (view.arrow != plan_arrow::none) {
        view.arrow_word = texts.text("ui_plan_overwrites");
    }
    return view;
}

std::string as_line(const plan_card& card) {
    std::string line = card.bay + ": " + card.model;
    add_words(line, card.serial);
    add_words(line, card.size);
    line += ": " + card.fate;
    const char* gap = ". "; // warnings are sentences, which bring their full stop
    for (const std::string& warning : card.warnings) {
        line += gap + warning;
        gap = " ";
    }
    return line;
}

std::string as_lines(const plan_view& view) {
    return view.heading + "\n" + view.enclosure + "\n" + as_line(view.cards[0]) + "\n" +
           as_line(view.cards[1]) + "\n";
}
