#include "tests/storm/steps.h"

#include <array>

#include "enclosure/problem.h"
#include "model/krtool.h"
#include "model/rescan.h"
#include "model/window.h"
#include "tests/support/selected_chip.h"

namespace {

constexpr std::array<const char*, 3> boxes = {"one", "two", "three"};
constexpr std::uint64_t smallest = 70000; // sectors: what a span takes, and more

void add_disk(enclosure::in_process_bench& bench, std::size_t index) {
    enclosure::disk_label label;
    label.model = std::string("Storm Disk ") + storm_disks.at(index);
    label.serial = std::string("S-") + storm_disks.at(index);
    label.sectors = smallest + 100 * index; // each has its record in a place of its own
    bench.add_disk(storm_disks.at(index), label);
}

} // namespace

hands::hands(enclosure::in_process_bench& bench, std::uint64_t seed)
    : bench_(bench), random_(seed) {
    constexpr std::array<enclosure::scenario, 3> states = {
        enclosure::scenario::raid1, enclosure::scenario::rebuild, enclosure::scenario::raid0};
    for (std::size_t i = 0; i < storm_disks.size(); ++i) {
        add_disk(bench_, i);
    }
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        enclosure::cabinet_settings settings;
        settings.name = boxes.at(i);
        bench_.add_enclosure(settings);
        bench_.insert(boxes.at(i), 0, storm_disks.at(2 * i));
        bench_.insert(boxes.at(i), 1, storm_disks.at(2 * i + 1));
        bench_.arrange(boxes.at(i), states.at(i));
        bench_.plug(boxes.at(i));
    }
}

std::string hands::any_enclosure() {
    return boxes.at(random_() % boxes.size());
}

std::string hands::any_disk() {
    return storm_disks.at(random_() % storm_disks.size());
}

void hands::act() {
    // Mostly what brings disks and bridges back.
    switch (random_() % 16) {
    case 0:
        return bench_.unplug(any_enclosure());
    case 1:
        return bench_.pull(any_enclosure(), any_bay());
    case 2:
        return bench_.warm_boot(any_enclosure());
    case 3:
        return bench_.power_cut(any_enclosure());
    case 4:
    case 5:
    case 6:
    case 7:
        bench_.plug(any_enclosure());
        return;
    case 8:
    case 9:
        return bench_.advance(std::chrono::milliseconds(random_() % 3000));
    default:
        return bench_.insert(any_enclosure(), any_bay(), any_disk());
    }
}

void hands::step() {
    try {
        act();
    } catch (const enclosure::problem&) {
        bench_.advance(std::chrono::milliseconds(100)); // it is plugged in already, or empty
    }
}

void hands::plug_all() {
    for (const char* name : boxes) {
        bench_.advance(std::chrono::minutes(1)); // past any restart
        if (bench_.handle_of(name) == 0) {
            bench_.plug(name);
        }
    }
}

void user::step() {
    switch (random_() % 8) {
    case 0:
    case 1:
        return select();
    case 2:
        return ctrller->refresh();
    case 3: {
        const gate_scope work(j.gate);
        j.warm_boot();
        return;
    }
    default:
        return change();
    }
}

void user::select() {
    const gate_scope work(j.gate);
    if (!j.chips.empty()) {
        select_enclosure(j.chips[random_() % j.chips.size()].identity);
        ctrller->update_raid_information();
    }
}

void user::change() {
    const auto what = random_() % 8;
    const gate_scope work(j.gate);
    krchip* chip = j.selected();
    if (chip != nullptr && chip->same_disks_answer() && change_array(*chip, what)) {
        ++changes_;
    }
}

bool user::change_array(krchip& chip, std::uint64_t what) {
    switch (what) {
    case 0:
    case 1:
        return chip.create_raid(mode_raid1, true);
    case 2:
        return chip.create_raid(mode_raid0, true);
    case 3:
        return chip.create_raid(mode_span, true);
    case 4:
        return chip.clear_raid();
    case 5:
        return chip.clear_disk(true);
    default:
        return chip.rebuild(what == 7);
    }
}
