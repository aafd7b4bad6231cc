// States that a pair of disks can be put into, to try things on.
#pragma once

#include "enclosure/disk.h"
#include "enclosure/metadata.h"

#include <array>
#include <optional>
#include <string_view>

namespace enclosure {

enum class scenario {
    unconfigured, // in no array
    raid0,
    raid1,
    span,
    degraded, // a mirror with its first member only
    diverged, // a mirror whose members were written at different times
    broken,   // a stripe whose second disk was exchanged for a blank one
    rebuild,  // a mirror whose first member is to be copied to the second
};

inline constexpr std::array<std::string_view, 8> scenario_names = {
    "unconfigured", "raid0", "raid1", "span", "degraded", "diverged", "broken", "rebuild"};

std::optional<scenario> scenario_named(std::string_view name);
std::string_view name_of(scenario state);

// Writes both disks' records for a state, into the images and past all faults. What else makes
// up the state, exchanging or taking out the second disk, is the caller's. Throws problem when a
// disk is silent or too small.
void write_records(scenario state, disk& first, disk& second);

// Takes a disk out of any array. Throws problem as above.
void erase_record(disk& which);

} // namespace enclosure
