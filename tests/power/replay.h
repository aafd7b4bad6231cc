// One change, cut off at every point, and what becomes of it then.
#pragma once

#include <map>
#include <vector>

#include "tests/power/findings.h"
#include "tests/power/power_cases.h"
#include "tests/power/power_fixture.h"
#include "tests/power/tally.h"

class replay : public power_test {
protected:
    // Makes the change, visits every cut of it and fails the test for what must not be.
    case_tally cut_everywhere(const power_case& one);

private:
    struct result {
        finding is;
        ending how = ending::by_itself;
        cut_count second_cuts; // while the program reacts
    };

    disk_pair disks_before() const;
    void meanwhile(disk_pair& disks) const;
    disk_events let_it_happen();
    std::vector<disk_pair> wanted_ends();

    result look_at(const disk_pair& left);
    finding judge_now(const disk_pair& disks);
    cut_count cut_again(const disk_pair& disks, const disk_events& reaction);

    bool offered(const disk_pair& disks);
    ending carry_on(disk_pair disks, const finding& from);
    void take_way_out(disk_pair& disks);

    power_case case_;
    undisturbed_change change_;
    std::vector<disk_pair> ends_; // any of these is what is wanted in the end
};
