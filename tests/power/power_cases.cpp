#include "tests/power/power_cases.h"

#include <array>
#include <utility>

#include "tests/power/starts.h"

namespace {

constexpr std::array<int, 3> kinds = {1, 2, 4};

std::string on_disk(bool port) {
    return port ? "disk 2" : "disk 1";
}

power_case case_of(std::string change, disk_start start) {
    power_case one;
    one.change = std::move(change);
    one.start = std::move(start.name);
    one.disks = std::move(start.disks);
    return one;
}

bool holds(const krdisk& disk, int mode) {
    return disk.present != 0 && disk.raid_mode == mode;
}

void add_creations(std::vector<power_case>& cases) {
    for (const int mode : kinds) {
        const std::vector<disk_start> starts = {
            plain_start(),         array_start(1),      array_start(2),    array_start(4),
            exchanged_start(mode), smaller_start(mode), half_start(1, 0),  half_start(4, 1),
            degraded_start(0),     degraded_start(1),   diverged_start(0), foreign_start()};
        for (const disk_start& start : starts) {
            power_case one = case_of("Create a " + name_of_kind(mode), start);
            one.act = [mode](krchip& chip) { chip.create_raid(mode, true); };
            one.offered = [](const view_state& view) { return view.both_idle; };
            cases.push_back(one);
        }
    }
}

// What is left of an array that was deleted halfway: a mirror's half is copied over the other disk
// again, which brings the array back; what belongs to no other is wiped. `source` is the port whose
// data a copy had not yet brought to the other disk.
void undo_half_a_deletion(krchip& chip, const view_state& view, std::optional<int> source) {
    for (std::size_t port = 0; port < view.disks.size(); ++port) {
        const bool unfinished = source && static_cast<int>(port) != *source;
        if (holds(chip.disks[port], mode_raid1) && !unfinished) {
            chip.rebuild(port == 1);
            return;
        }
        if (view.disks[port].cleardiskbutton) {
            chip.clear_disk(port == 1);
        }
    }
}

void add_deletions(std::vector<power_case>& cases) {
    const std::vector<std::pair<disk_start, std::optional<int>>> starts = {{array_start(1), {}},
                                                                           {array_start(2), {}},
                                                                           {array_start(4), {}},
                                                                           {copying_start(0), 0},
                                                                           {copying_start(1), 1}};
    for (const auto& [start, source] : starts) {
        power_case one = case_of("Delete", start);
        one.act = [](krchip& chip) { chip.clear_raid(); };
        one.offered = [](const view_state& view) { return view.clearconfigbutton; };
        one.copy_source = source;
        one.way_out = [source = source](krchip& chip, const view_state& view) {
            undo_half_a_deletion(chip, view, source);
        };
        cases.push_back(one);
    }
}

void add_wipes(std::vector<power_case>& cases) {
    for (const bool port : {false, true}) {
        const std::size_t index = port ? 1 : 0;
        for (const disk_start& start :
             {degraded_start(index), mixed_start(index), diverged_start(0), diverged_start(1),
              half_start(1, index), half_start(4, index)}) {
            power_case one = case_of("Wipe " + on_disk(port), start);
            one.act = [port](krchip& chip) { chip.clear_disk(port); };
            one.offered = [index](const view_state& view) {
                return view.disks.at(index).cleardiskbutton;
            };
            cases.push_back(one);
        }
    }
}

void add_rebuilds(std::vector<power_case>& cases) {
    for (const bool from_second : {false, true}) {
        const std::size_t source = from_second ? 1 : 0;
        for (const disk_start& start : {degraded_start(source), mixed_start(source),
                                        diverged_start(0), diverged_start(1), foreign_start()}) {
            power_case one = case_of("Rebuild from " + on_disk(from_second), start);
            one.act = [from_second](krchip& chip) { chip.rebuild(from_second); };
            one.offered = [source](const view_state& view) {
                return view.disks.at(source).rebuildbutton;
            };
            one.copy_source = static_cast<int>(source);
            cases.push_back(one);
        }
    }
}

void add_selections(std::vector<power_case>& cases) {
    for (const std::size_t port : {std::size_t{0}, std::size_t{1}}) {
        for (const disk_start& start : {deserted_start(port), alone_start(port)}) {
            power_case one = case_of("Select", start);
            one.act = [](krchip& chip) { chip.select_chip(); };
            cases.push_back(one);
        }
        power_case returned = case_of("Select", alone_start(port));
        returned.start += ", whose partner comes back";
        returned.act = [](krchip& chip) { chip.select_chip(); };
        returned.meanwhile = [port, partner = array_start(2).disks.at(1 - port)](disk_pair& disks) {
            disks.at(1 - port) = partner;
        };
        cases.push_back(returned);
    }
}

power_case end_of_copy(const disk_start& start, std::size_t source) {
    power_case one = case_of("Clear the mark", start);
    one.act = [](krchip& chip) {
        chip.clear_rebuild(false);
        chip.clear_rebuild(true);
    };
    one.copy_source = static_cast<int>(source);
    return one;
}

void add_ends_of_copies(std::vector<power_case>& cases) {
    for (const std::size_t source : {std::size_t{0}, std::size_t{1}}) {
        disk_start start = copied_start(source);
        cases.push_back(end_of_copy(start, source));
        // The same with a part of the copy in the target's cache: here, its first sector.
        const std::size_t target = 1 - source;
        start.name += ", not flushed";
        start.disks.at(target)->sectors[0] = sector_of(*plain_disks().at(target), 1);
        power_case cached = end_of_copy(start, source);
        cached.unflushed = {{false, target, 0, sector_of(*start.disks.at(source), 0)}};
        cases.push_back(cached);
    }
}

} // namespace

std::vector<power_case> every_power_case() {
    std::vector<power_case> cases;
    add_creations(cases);
    add_deletions(cases);
    add_wipes(cases);
    add_rebuilds(cases);
    add_selections(cases);
    add_ends_of_copies(cases);
    return cases;
}

std::ostream& operator<<(std::ostream& out, const power_case& one) {
    return out << one.change << " from " << one.start;
}
