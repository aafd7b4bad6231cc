#include "app/outlook.h"

#include "app/display_text.h"
#include "app/status_display.h"
#include "model/krchip.h"
#include "util/functions.h"

namespace {

constexpr std::uint32_t role_later = 1; // of two diverged copies, by the time of their records

bool holds_mirror(const krdisk& disk) {
    return disk.present != 0 && disk.raid_mode == mode_raid1;
}

bool is_broken(const krdisk& disk) {
    return disk.present != 0 && disk.member_mismatch != 0;
}

verdict verdict_on(const krchip& chip) {
    const krdisk& d0 = chip.disks[0];
    const krdisk& d1 = chip.disks[1];
    if (d0.present == 0 && d1.present == 0) {
        return verdict::no_disks;
    }
    if (chip.raid_valid != 0) {
        if (!is_array_mode(chip.raid_mode)) {
            return verdict::not_configured;
        }
        return chip.rebuild_pending != 0 ? verdict::rebuilding : verdict::healthy;
    }
    if (is_broken(d0) || is_broken(d1)) {
        return verdict::broken;
    }
    if (holds_mirror(d0) && holds_mirror(d1)) {
        return verdict::copies_differ;
    }
    return holds_mirror(d0) || holds_mirror(d1) ? verdict::degraded : verdict::not_configured;
}

const char* key_of(verdict is) {
    switch (is) {
    case verdict::no_enclosure:
        return "ui_verdict_none";
    case verdict::closed:
        return "ui_verdict_closed";
    case verdict::scanning:
        return "ui_verdict_scanning";
    case verdict::no_disks:
        return "ui_verdict_no_disks";
    case verdict::not_configured:
        return "not_config";
    case verdict::healthy:
        return "ui_verdict_healthy";
    case verdict::degraded:
        return "ui_verdict_degraded";
    case verdict::copies_differ:
        return "ui_verdict_differ";
    case verdict::broken:
        return "ui_verdict_broken";
    case verdict::rebuilding:
        return "ui_verdict_rebuilding";
    }
    return "";
}

// No line ends between a number and its unit.
std::string unbroken(std::string text) {
    constexpr const char* no_break_space = "\xC2\xA0";
    for (std::size_t at = text.find(' '); at != std::string::npos; at = text.find(' ', at)) {
        text.replace(at, 1, no_break_space);
    }
    return text;
}

std::string title_of_rebuild(std::size_t source, const text_lookup& texts) {
    const std::string word = texts.text("rebuild");
    return source == 0 ? word + "->" : "<-" + word;
}

// The disk that a running rebuild reads.
std::size_t source_port(const krchip& chip) {
    return chip.disks[0].rebuild_mark != 0 ? 0 : 1;
}

// A stray mark on a stripe or a span counts as a rebuild, but nothing is copied there.
bool is_copying(const krchip& chip, verdict is) {
    return is == verdict::rebuilding && chip.raid_mode == mode_raid1;
}

std::string state_of(const krchip& chip, verdict is, const text_lookup& texts) {
    if (is_copying(chip, is)) {
        const std::size_t source = source_port(chip);
        return filled(texts.text("ui_state_copying"), {number_of(source), number_of(1 - source)});
    }
    if (is != verdict::healthy) {
        return {};
    }
    return texts.text(chip.raid_mode == mode_raid1 ? "ui_state_mirror" : "ui_state_no_copy");
}

std::string advice_on_array(const krchip& chip, const text_lookup& texts) {
    switch (chip.raid_mode) {
    case mode_raid0:
        return texts.text("ui_advice_stripe");
    case mode_span:
        return texts.text("ui_advice_span");
    case mode_raid1:
        return texts.text("ui_advice_mirror");
    default:
        return texts.text("ui_advice_unknown");
    }
}

std::string advice_on_plain_disks(const krchip& chip, const text_lookup& texts) {
    for (std::size_t port = 0; port < chip.disks.size(); ++port) {
        if (chip.disks[port].present == 0) {
            return filled(texts.text("ui_advice_one_disk"),
                          {number_of(port), texts.text("refresh_button")});
        }
    }
    return filled(texts.text("ui_advice_pair"), {texts.text("create_raid")});
}

std::string advice_on_one_copy(const krchip& chip, bool decimal_units, const text_lookup& texts) {
    const std::size_t holder = holds_mirror(chip.disks[0]) ? 0 : 1;
    const std::size_t other = 1 - holder;
    const std::uint64_t needed = chip.disks[holder].raid_capacity;
    const std::string size = unbroken(capacity_text(needed, decimal_units));
    if (chip.disks[other].present == 0) {
        return filled(texts.text("ui_advice_missing"), {number_of(other), number_of(holder), size});
    }
    if (chip.disks[other].capacity < needed) {
        return filled(texts.text("ui_advice_small"), {number_of(holder), number_of(other), size});
    }
    return filled(texts.text("ui_advice_fresh"),
                  {number_of(holder), number_of(other), title_of_rebuild(holder, texts)});
}

// Nothing checks whose halves they are: the records have to say so themselves.
bool belong_together(const krdisk& one, const krdisk& other) {
    const auto suits = [](const krdisk& disk, const krdisk& partner) {
        return disk.names(partner) || disk.names_nobody();
    };
    return suits(one, other) && suits(other, one) && one.raid_capacity == other.raid_capacity;
}

// Written while its partner was away: it names nobody, or the enclosure has marked its time. A
// later record that names its partner is what a change has left that was cut off before the other
// one, so it tells nothing of the data.
bool ran_alone(const krdisk& disk) {
    return disk.names_nobody() || disk.raid_time.back() != 0;
}

std::string advice_on_two_copies(const krchip& chip, const text_lookup& texts) {
    if (!belong_together(chip.disks[0], chip.disks[1])) {
        return texts.text("ui_advice_differ_undated");
    }
    for (std::size_t port = 0; port < chip.disks.size(); ++port) {
        const krdisk& disk = chip.disks[port];
        if (disk.rebuild_role == role_later && ran_alone(disk)) {
            return filled(texts.text("ui_advice_differ"), {number_of(port)});
        }
    }
    return texts.text("ui_advice_differ_undated");
}

std::string advice_on_halves(const krchip& chip, const text_lookup& texts) {
    const std::string refresh = texts.text("refresh_button");
    for (std::size_t port = 0; port < chip.disks.size(); ++port) {
        const krdisk& other = chip.disks[1 - port];
        if (holds_mirror(other)) {
            return filled(texts.text("ui_advice_beside_half"),
                          {number_of(1 - port), number_of(port)});
        }
        if (is_broken(chip.disks[port]) && (other.present == 0 || !other.is_member())) {
            return filled(texts.text("ui_advice_half"), {number_of(port), refresh});
        }
    }
    return filled(texts.text("ui_advice_halves"), {refresh});
}

std::string advice_on(const krchip& chip, verdict is, bool decimal_units,
                      const text_lookup& texts) {
    switch (is) {
    case verdict::no_disks:
        return filled(texts.text("ui_advice_no_disks"), {texts.text("refresh_button")});
    case verdict::healthy:
        return advice_on_array(chip, texts);
    case verdict::degraded:
        return advice_on_one_copy(chip, decimal_units, texts);
    case verdict::copies_differ:
        return advice_on_two_copies(chip, texts);
    case verdict::broken:
        return advice_on_halves(chip, texts);
    case verdict::rebuilding:
        return is_copying(chip, is)
                   ? filled(texts.text("ui_advice_rebuilding"), {number_of(source_port(chip))})
                   : advice_on_array(chip, texts);
    case verdict::not_configured:
        if (chip.raid_valid != 0) {
            return advice_on_array(chip, texts);
        }
        break;
    case verdict::no_enclosure:
    case verdict::closed:
    case verdict::scanning:
        break;
    }
    return advice_on_plain_disks(chip, texts);
}

std::optional<int> row_of(const krchip& chip) {
    if (chip.raid_valid == 0) {
        return std::nullopt;
    }
    switch (chip.raid_mode) {
    case mode_raid0:
        return 0;
    case mode_raid1:
        return 1;
    case mode_span:
        return 2;
    default:
        return std::nullopt;
    }
}

copy_side side_of(const krchip& chip, std::size_t port, verdict is, const text_lookup& texts) {
    if (is_copying(chip, is)) {
        return {texts.text(port == source_port(chip) ? "ui_source" : "ui_target"), {}};
    }
    const krdisk& disk = chip.disks[port];
    const std::string time =
        disk.present != 0 && disk.is_member() ? time_of_record(disk.raid_time) : "";
    return {{}, time.empty() ? "" : filled(texts.text("ui_record"), {time})};
}

// Nothing but the verdict, and one reason for everything.
outlook without_chip(verdict is, const char* advice, const char* reason, const text_lookup& texts) {
    outlook made;
    made.is = is;
    made.word = texts.text(key_of(is));
    made.advice = advice == nullptr ? std::string() : texts.text(advice);
    const std::string why = texts.text(reason);
    made.reasons = {why, why, {why, why}};
    return made;
}

} // namespace

outlook outlook_of(const krchip& chip, bool decimal_units, const text_lookup& texts) {
    outlook made;
    made.is = verdict_on(chip);
    made.word = texts.text(key_of(made.is));
    made.state = state_of(chip, made.is, texts);
    made.advice = advice_on(chip, made.is, decimal_units, texts);
    made.kind_in_use = row_of(chip);
    made.create_is_next = made.is == verdict::not_configured && chip.raid_valid == 0 &&
                          chip.disks[0].present != 0 && chip.disks[1].present != 0;
    made.failure = made.is == verdict::degraded || made.is == verdict::broken;
    made.reasons = reasons_of(chip, texts);
    made.sides = {side_of(chip, 0, made.is, texts), side_of(chip, 1, made.is, texts)};
    return made;
}

outlook outlook_without_enclosure(const text_lookup& texts) {
    return without_chip(verdict::no_enclosure, "ui_advice_none", "ui_reason_no_enclosure", texts);
}

outlook outlook_on_closed_enclosure(const text_lookup& texts) {
    return without_chip(verdict::closed, nullptr, "ui_reason_closed", texts);
}

outlook outlook_while_scanning(const text_lookup& texts) {
    return without_chip(verdict::scanning, nullptr, "ui_reason_scanning", texts);
}

std::string in_words(const outlook& now, const std::string& array, const text_lookup& texts) {
    if (array.empty()) {
        return filled(texts.text("ui_said"), {now.word, now.advice});
    }
    return filled(texts.text("ui_said_array"), {array, now.word, now.advice});
}
