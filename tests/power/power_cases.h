// Every change of an array, from everything that it may find on the disks.
#pragma once

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "app/status_display.h"
#include "model/krchip.h"
#include "tests/power/disk_pair.h"
#include "tests/power/power_cuts.h"

struct power_case {
    std::string change; // "Create a mirror"
    std::string start;  // "a stripe"
    disk_pair disks;
    // What the chip has written and not flushed when the change begins.
    disk_events unflushed;
    std::function<void(krchip&)> act;
    // Whether its button is on. Nothing for what the program does by itself.
    std::function<bool(const view_state&)> offered;
    std::optional<int> copy_source; // port of the only disk that may be copied
    // What the manual says to do when the change is no longer offered; the change follows if it is
    // offered then. Nothing where there is no such way.
    std::function<void(krchip&, const view_state&)> way_out;
    // What happens to the disks besides, while the power is off.
    std::function<void(disk_pair&)> meanwhile;
};

std::vector<power_case> every_power_case();

// How a failing test shows it.
std::ostream& operator<<(std::ostream& out, const power_case& one);
