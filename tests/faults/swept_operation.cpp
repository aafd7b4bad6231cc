#include "tests/faults/swept_operation.h"

#include <map>

#include "device/hotplug.h"
#include "model/krtool.h"
#include "model/monitors.h"
#include "model/rescan.h"
#include "tests/support/array_operations.h"
#include "tests/support/change_fixture.h"

namespace {

using reach = swept_operation::reach;
using promise = swept_operation::promise;

// No operation finds on a disk what it is going to write there.
memory_disk filled(const identify_block& block) {
    memory_disk disk = with_data(memory_disk(block));
    disk.sectors[usual_metadata] = data_sector();
    return disk;
}

const std::map<std::string, reach>& reach_by_name() {
    static const std::map<std::string, reach> all = {
        {"CreateStripe", {1, {true, true}}},   {"CreateMirror", {1, {true, true}}},
        {"CreateSpan", {1, {true, true}}},     {"CreateNothing", {64, {true, true}}},
        {"ClearStripe", {64, {true, true}}},   {"ClearMirror", {0, {true, true}}},
        {"ClearDisk0", {64, {true, false}}},   {"ClearDisk1", {64, {false, true}}},
        {"Rebuild0To1", {0, {true, true}}},    {"Rebuild1To0", {0, {true, true}}},
        {"WarmBoot", {0, {false, false}}},     {"Degrade0", {0, {true, false}}},
        {"Degrade1", {0, {false, true}}},      {"ClearRebuild0", {0, {true, false}}},
        {"ClearRebuild1", {0, {false, true}}},
    };
    return all;
}

krchip& chip_of_j() {
    return *j.selected();
}

swept_operation swept(const array_operation& operation) {
    using verdict = array_operation::verdict;
    const bool told =
        operation.decided_by == verdict::records || operation.decided_by == verdict::record;
    return {operation.name,
            told ? promise::records : promise::nothing,
            reach_by_name().at(operation.name),
            false,
            {filled(disk_a()), filled(disk_b())},
            [operation] { operation.prepare(chip_of_j()); },
            [operation] { return operation.run(chip_of_j()); }};
}

swept_operation reading(const std::string& name, bool may_degrade, disk_pair disks,
                        std::function<void()> body) {
    return {name,
            promise::nothing,
            {},
            may_degrade,
            std::move(disks),
            [] {},
            [body = std::move(body)] {
                body();
                return true;
            }};
}

void scan() {
    const gate_scope work(j.gate);
    j.scandevices();
    j.updatediskinformation();
    j.read_raid();
}

void arrive() {
    world().hotplug.arrived = {0x11};
    DeviceAdded(nullptr, scripted_hotplug::iterator);
}

// Of another bridge: this one is there and is read again.
void depart() {
    DeviceRemoved(nullptr, 0x12, message_terminated, nullptr);
}

memory_disk marked_member() {
    metadata_sector marked = metadata_of(mode_raid1, 0, 1900, disk_b());
    marked.flags = raid_info::rebuild_bit;
    return with_data(member_a(mode_raid1, &marked));
}

// The copy is at its end; the poller finds that out, and takes the mark away.
swept_operation end_of_copy() {
    const auto start = [] {
        world().library.with_bridges([](memory_enclosure& all) {
            all.bridge(0x11).readings = {{0, 1900, 1900}};
        });
        chip_of_j().start_polling();
    };
    return {"EndOfCopy",
            promise::nothing,
            {},
            false,
            {marked_member(), with_data(member_b(mode_raid1))},
            start,
            [] {
                world().threads.run_next();
                return true;
            }};
}

// The timer finds a bay empty, says so and has everything read again. Where there is nothing new to
// be found it would watch for ever.
bool watch_for_a_while() {
    constexpr int looks = 20;
    world().pause.on_nth(looks, [] {
        j.with_chip(j.current_place(), [](krchip& chip) { chip.raid1_timer_on = false; });
    });
    world().threads.run_next();
    return true;
}

swept_operation swap() {
    const auto start = [] {
        const gate_scope work(j.gate);
        chip_of_j().start_raid1_timer();
        world().library.with_bridges(
            [](memory_enclosure& all) { all.bridge(0x11).disks[1].reset(); });
    };
    return {"DiskPulled",
            promise::nothing,
            {0, {true, false}},
            true,
            {with_data(member_a(mode_raid1)), with_data(member_b(mode_raid1))},
            start,
            watch_for_a_while};
}

std::vector<swept_operation> every_reading() {
    const disk_pair stripe = {with_data(member_a(mode_raid0)), with_data(member_b(mode_raid0))};
    const disk_pair mirror = {with_data(member_a(mode_raid1)), with_data(member_b(mode_raid1))};
    const disk_pair half = {with_data(member_a(mode_raid1)), std::nullopt};
    const auto refresh = [] { DeviceAdded(nullptr, 0); };
    const auto compare = [] {
        const gate_scope work(j.gate);
        chip_of_j().same_disks_answer();
    };
    return {reading("ScanStripe", false, stripe, scan),
            reading("ScanMirror", false, mirror, scan),
            reading("RefreshStripe", false, stripe, refresh),
            reading("RefreshMirror", true, mirror, refresh),
            reading("ArrivalOfMirror", true, mirror, arrive),
            reading("DepartureBesideMirror", true, mirror, depart),
            reading("DegradeAtSelection", true, half, refresh),
            reading("CompareDisks", false, mirror, compare),
            end_of_copy(),
            swap()};
}

} // namespace

std::vector<swept_operation> every_swept_operation() {
    std::vector<swept_operation> all;
    for (const array_operation& operation : every_array_operation()) {
        all.push_back(swept(operation));
    }
    for (swept_operation& operation : every_reading()) {
        all.push_back(std::move(operation));
    }
    return all;
}

std::ostream& operator<<(std::ostream& out, const swept_operation& operation) {
    return out << operation.name;
}
