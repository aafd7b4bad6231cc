// Everything that the model does with the access library, for tests that go through all of it.
#pragma once

#include <array>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "tests/support/memory_enclosure.h"

using disk_pair = std::array<std::optional<memory_disk>, 2>;

struct swept_operation {
    // What its result promises when it is true.
    enum class promise { nothing, records };

    // What it may write to, besides the sector of a record.
    struct reach {
        std::uint64_t first_sectors = 0;       // so many of them, from LBA 0
        std::array<bool, 2> ports{true, true}; // of which disks
    };

    std::string name;
    promise promised = promise::nothing;
    reach may_write;
    // A reading that fails may be taken for a bay that is empty: then the half of a mirror that
    // is left is degraded, and stays so.
    bool may_degrade = false;
    disk_pair disks;               // that it begins with
    std::function<void()> prepare; // once these are attached and read
    std::function<bool()> run;     // on the thread that does it
};

std::vector<swept_operation> every_swept_operation();

// How a failing test shows it.
std::ostream& operator<<(std::ostream& out, const swept_operation& operation);
