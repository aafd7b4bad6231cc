// What the kernel says is mounted, and used as swap.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// Texts are bytes, with the kernel's escapes undone; a mount point can have any but zero.
struct mount_entry {
    std::string number; // of the device, "8:17"; major 0 is a file system's own
    std::string place;  // the mount point
    std::string source; // what was mounted, as "/dev/sdb1"; empty when it is not told
};

// Of the text of /proc/self/mountinfo; what is no line of it is left out. Any thread.
std::vector<mount_entry> mounts_of(std::string_view mountinfo);

// The files of the areas in the text of /proc/swaps. Any thread.
std::vector<std::string> swaps_of(std::string_view swaps);
