// Everything that changes what a chip's disks hold, for tests that go through all of it.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "model/krchip.h"

struct array_operation {
    // What decides the result.
    enum class verdict {
        records, // whether the RAID records could be written; without them there is no restart
        record,  // the same, and there is no restart anyway
        restart, // whether the chip restarted
        nothing, // true whatever happens
    };

    std::string name; // as part of a test's name
    int mode = 0;     // of the array that it finds
    verdict decided_by = verdict::nothing;
    bool (*change)(krchip&) = nullptr;

    // Puts the chip's records into the mode that it finds, whatever the disks say.
    void prepare(krchip& chip) const;
    // With the gate, as the program does.
    bool run(krchip& chip) const;
};

std::vector<array_operation> every_array_operation();

// How a failing test shows it.
std::ostream& operator<<(std::ostream& out, const array_operation& operation);
