// What a change may find on the disks.
#pragma once

#include <string>
#include <vector>

#include "tests/power/disk_pair.h"

struct disk_start {
    std::string name; // "a stripe"
    disk_pair disks;
};

std::string name_of_kind(int mode); // "stripe", "mirror", "span"

disk_start plain_start();
disk_start array_start(int mode);
// Made while each of the disks was in the other's bay.
disk_start exchanged_start(int mode);
// Smaller than this program makes it.
disk_start smaller_start(int mode);
// Half of a stripe or span beside a plain disk.
disk_start half_start(int mode, std::size_t port);
// The half of a mirror that runs alone beside a plain disk.
disk_start degraded_start(std::size_t port);
// The same beside half a stripe.
disk_start mixed_start(std::size_t port);
// A lone half when the program has not yet seen that the partner is gone.
disk_start deserted_start(std::size_t port);
// Likewise beside an empty bay.
disk_start alone_start(std::size_t port);
// The half on `later` has run alone.
disk_start diverged_start(std::size_t later);
// Halves of two mirrors, whose other halves are elsewhere.
disk_start foreign_start();
// A copy asked for and not begun.
disk_start copying_start(std::size_t source);
// One that has come to its end.
disk_start copied_start(std::size_t source);
