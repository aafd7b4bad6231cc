#include "tests/power/findings.h"

#include <algorithm>

namespace {

using enclosure::volume_state;

constexpr std::size_t mode_offset = 2;
constexpr std::size_t member_offset = 3;
constexpr std::size_t capacity_offset = 8;
constexpr std::size_t partner_offset = 16;
constexpr std::size_t partner_size = 60;
constexpr std::size_t time_offset = 480;
constexpr std::size_t time_size = 16;
constexpr unsigned char mirror = 2;

bool same_bytes(const sector_bytes& a, const sector_bytes& b, std::size_t offset,
                std::size_t size) {
    return std::equal(a.begin() + static_cast<std::ptrdiff_t>(offset),
                      a.begin() + static_cast<std::ptrdiff_t>(offset + size),
                      b.begin() + static_cast<std::ptrdiff_t>(offset));
}

bool has_signature(const sector_bytes& record) {
    return record[0] == 'K' && record[1] == 'R';
}

// Whether the record on `port` names the other disk as the partner.
bool names_partner(const disk_pair& disks, std::size_t port) {
    const sector_bytes wanted =
        metadata_of(0, 0, 0, port == 0 ? second_disk() : first_disk()).bytes();
    return same_bytes(record_of(disks, port), wanted, partner_offset, partner_size);
}

bool same_records(const disk_pair& a, const disk_pair& b) {
    for (std::size_t port = 0; port < a.size(); ++port) {
        if (a[port] && record_of(a, port) != record_of(b, port)) {
            return false;
        }
    }
    return true;
}

found found_by(verdict is) {
    switch (is) {
    case verdict::healthy:
        return found::healthy;
    case verdict::rebuilding:
        return found::rebuilding;
    case verdict::degraded:
        return found::degraded;
    case verdict::copies_differ:
        return found::differ;
    case verdict::broken:
        return found::broken;
    default:
        return found::unconfigured;
    }
}

// First sectors: what is missing of the old state, or left of it in the new one.
void add_heads(finding& made, const undisturbed_change& change, const disk_pair& left) {
    for (std::size_t port = 0; port < left.size(); ++port) {
        if (!left[port] || !change.start[port]) {
            continue;
        }
        const sector_bytes head = sector_of(*left[port], 0);
        const sector_bytes record = record_of(left, port);
        if (made.is == found::before && head == sector_bytes{} &&
            head != sector_of(*change.start[port], 0)) {
            made.remarks.insert(remark::head_gone);
        }
        if (record != record_of(change.start, port) && record == record_of(change.end, port) &&
            head != sector_of(*change.end[port], 0)) {
            made.remarks.insert(remark::head_left);
        }
        if (!has_signature(record) && record != sector_bytes{}) {
            made.remarks.insert(remark::tail_left);
        }
    }
}

// An array that counts as in order although its records are not of one change.
void add_mixtures(finding& made, const disk_pair& left) {
    const sector_bytes record0 = record_of(left, 0);
    const sector_bytes record1 = record_of(left, 1);
    const bool is_mirror = record0[mode_offset] == mirror;
    const bool same_time = same_bytes(record0, record1, time_offset, time_size);
    const bool both_name = names_partner(left, 0) && names_partner(left, 1);
    if (record0[mode_offset] != record1[mode_offset]) {
        made.fault = "in order, of two kinds";
    } else if (is_mirror && !same_time) {
        made.fault = "a mirror in order, of records with different times";
    } else if (!is_mirror && !both_name) {
        made.fault = "in order, of disks that do not name each other";
    }
    if (!same_time) {
        made.remarks.insert(remark::two_times);
    }
    if (!both_name) {
        made.remarks.insert(remark::not_named);
    }
    if (record0[member_offset] == record1[member_offset]) {
        made.remarks.insert(remark::same_place);
    }
    if (!same_bytes(record0, record1, capacity_offset, 8)) {
        made.remarks.insert(remark::two_sizes);
    }
}

void check_copy(finding& made, const power_case& one, const disk_pair& left,
                const program_reading& program, const chip_reading& chip) {
    if (!chip.copy) {
        return;
    }
    if (one.copy_source != chip.copy->source) {
        made.fault = "a copy that nobody asked for";
    } else if (program.view.rebuild_source != chip.copy->source) {
        made.fault = "a copy in another direction than is shown";
    }
    if (!same_bytes(record_of(left, 0), record_of(left, 1), time_offset, time_size)) {
        made.remarks.insert(remark::copy_of_two_times);
    }
}

// Which disk is in danger of being taken for the one that counts.
void add_dangers(finding& made, const power_case& one, const program_reading& program,
                 const disk_pair& left, const chip_reading& chip) {
    if (!one.copy_source || made.is == found::before) {
        return;
    }
    if (program.is == verdict::healthy && sector_of(*left[0], 0) != sector_of(*left[1], 0)) {
        made.remarks.insert(remark::copy_lost);
    }
    const int target = 1 - *one.copy_source;
    if (made.is == found::differ && chip.read_port == target) {
        made.remarks.insert(remark::target_later);
        if (program.names_later_copy) {
            made.fault = "the disk to be overwritten is called the more recent one";
        }
    }
    if (made.is == found::degraded && chip.read_port == target) {
        made.remarks.insert(remark::unfinished_half);
    }
}

} // namespace

bool agree(verdict program, volume_state chip) {
    switch (chip) {
    case volume_state::no_disk:
        return program == verdict::no_disks;
    case volume_state::plain:
        return program == verdict::not_configured;
    case volume_state::in_order:
        return program == verdict::healthy;
    case volume_state::copying:
        return program == verdict::rebuilding;
    case volume_state::degraded:
        return program == verdict::degraded;
    case volume_state::diverged:
        return program == verdict::copies_differ;
    case volume_state::broken:
        return program == verdict::broken;
    }
    return false;
}

finding judge(const power_case& one, const undisturbed_change& change, const disk_pair& left,
              const program_reading& program, const chip_reading& chip) {
    finding made;
    made.is = found_by(program.is);
    if (same_records(change.start, left)) {
        made.is = found::before;
    } else if (same_records(change.end, left)) {
        made.is = found::done;
    }
    if (!agree(program.is, chip.presented.state)) {
        made.fault = "the program and the chip do not agree";
    }
    if (made.is == found::healthy) {
        add_mixtures(made, left);
    }
    check_copy(made, one, left, program, chip);
    add_heads(made, change, left);
    add_dangers(made, one, program, left, chip);
    return made;
}
