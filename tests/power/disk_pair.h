// Both disks of an enclosure as they lie there without power, and what the tests put on them.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>

#include "tests/support/memory_enclosure.h"

using disk_pair = std::array<std::optional<memory_disk>, 2>; // index = port

// The disks of all cases: of different sizes, the first one smaller; large enough for a span.
identify_block first_disk();
identify_block second_disk();

// The sectors of every array that the program makes of them.
std::uint64_t usual_capacity(int mode);

// Both in no array, each with data of its own in its first sectors, in the middle and at the end of
// what a mirror would hold.
disk_pair plain_disks();

std::uint64_t record_address(const memory_disk& disk);
sector_bytes sector_of(const memory_disk& disk, std::uint64_t lba);
sector_bytes record_of(const disk_pair& disks, std::size_t port); // of a disk that is there

// Sectors that are zero count as never written.
void drop_empty_sectors(disk_pair& disks);

using disk_content = std::map<std::uint64_t, sector_bytes>; // sectors that are not zero
using disk_contents = std::array<disk_content, 2>;
disk_contents contents_of(disk_pair disks);
// The same without the times in the records. Two records of one time stay two of one time.
disk_contents timeless_contents_of(disk_pair disks);
