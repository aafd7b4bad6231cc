// The program and the chip, each started anew over disks that a power cut has left.
#pragma once

#include <functional>
#include <optional>

#include "app/outlook.h"
#include "app/status_display.h"
#include "tests/power/chip_bench.h"
#include "tests/power/disk_pair.h"
#include "tests/power/power_cuts.h"
#include "tests/support/fixture.h"

// How the program shows what it finds.
struct program_reading {
    verdict is = verdict::no_disks;
    view_state view;
    bool names_later_copy = false; // of two copies that differ
};

class power_test : public model_test {
protected:
    using action = std::function<void(krchip&)>;
    using informed_action = std::function<void(krchip&, const view_state&)>;

    // What the program shows of these disks before it does anything with them.
    program_reading read(const disk_pair& disks);

    // Does something in a program just started, a minute after the last time. What it writes
    // becomes part of the disks. Fails the test for a write to the data area.
    disk_events act(disk_pair& disks, const informed_action& what);
    disk_events act(disk_pair& disks, const action& what);

    // Power comes back: the chip reads the disks and copies what it is asked to.
    void switch_on(disk_pair& disks) { chip_.power_on(disks); }
    // The program selects the chip and, if a copy was made, clears its mark. Fails the test for a
    // write to anything but a RAID record.
    disk_events let_program_react(disk_pair& disks);
    // Both.
    void come_back(disk_pair& disks);

private:
    krchip& start_program(const disk_pair& disks);
    disk_pair disks_now();

    chip_bench chip_;
    int minute_ = 0;
};
