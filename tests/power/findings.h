// What the disks hold after a power cut, in words that the table counts.
#pragma once

#include <array>
#include <set>
#include <string>
#include <vector>

#include "tests/power/disk_pair.h"
#include "tests/power/power_cases.h"
#include "tests/power/power_fixture.h"

// Columns of the table, by the RAID records alone.
enum class found { before, done, healthy, rebuilding, degraded, differ, broken, unconfigured };
inline constexpr std::size_t found_kinds = 8;

// What has to be said besides; docs/reliability.md explains each letter.
enum class remark : char {
    head_gone = 'A',         // the records are those of before, a first sector is erased
    head_left = 'B',         // the record is written, the first sector before it is not yet erased
    two_times = 'C',         // in order, of two records that differ in their times alone
    same_place = 'D',        // in order, though both records say the same port
    two_sizes = 'E',         // in order, of records with different sizes
    target_later = 'F',      // the disk to be overwritten passes for the later copy
    unfinished_half = 'G',   // what a copy has not finished is the only half left
    not_named = 'H',         // a mirror in order, of which one half names no partner
    tail_left = 'I',         // the second half of an erased record is still there
    copy_of_two_times = 'J', // a copy runs, and its records will not be of one time after it
    copy_lost = 'K',         // a mirror in order, of which one half lacks what a copy had brought
};

struct undisturbed_change {
    disk_pair start;
    disk_pair end;
};

struct finding {
    found is = found::before;
    std::set<remark> remarks;
    std::string fault; // why this must not be; empty when it may
};

// Of disks that are left from `change`, as the program and the chip read them.
finding judge(const power_case& one, const undisturbed_change& change, const disk_pair& left,
              const program_reading& program, const chip_reading& chip);

// Whether the program tells of the array what the chip makes of it.
bool agree(verdict program, enclosure::volume_state chip);
