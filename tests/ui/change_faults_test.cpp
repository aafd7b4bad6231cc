// What people are told, and what is kept for them, when a call of the library fails while an array
// is changed by its button.
#include <QPushButton>
#include <algorithm>
#include <gtest/gtest.h>
#include <iostream>

#include "app/radio_matrix.h"
#include "tests/support/fault.h"
#include "tests/ui/window_test.h"

namespace {

struct pressed_button {
    std::string name;
    int row;  // of the array to create
    int mode; // of the array that is there
    QPushButton* controller::*button;
    std::string error;
};

class ChangeByButton : public window_test, public testing::WithParamInterface<pressed_button> {
protected:
    void take_disks() {
        forget_all();
        hotplug.arrived.clear();
        const int mode = GetParam().mode;
        mode == 0 ? take_chip(memory_disk(disk_a()), memory_disk(disk_b()))
                  : take_chip(member_a(mode), member_b(mode));
        window->raidconfigradiobutton->select_row(GetParam().row);
        log.clear();
    }

    void plan(const fault& kind, int nth) {
        struck.clear();
        carries_bytes = false;
        library.forget_plans();
        library.with_bridges([this](memory_enclosure& all) { before = all; });
        library.replace_nth("", nth, [this, &kind, nth](const library_call& call, auto& all) {
            struck = call.name;
            carries_bytes = call.carries_bytes();
            if (kind.departs()) {
                all.bridges.clear();
            }
            if (kind.lies()) {
                return lie(kind, nth, call, all, before);
            }
            return kind.departs() ? all.answer(call) : library_answer{kind.status};
        });
    }

    void press() {
        QPushButton* button = window.get()->*GetParam().button;
        button->setEnabled(true);
        button->click();
        happened = log.lines();
    }

    static bool is_write(const std::string& line) { return line.starts_with("krSetRaidInfo"); }

    // What happened before everything was read again.
    lines until_refresh() const {
        return {happened.begin(),
                std::find_if(happened.begin(), happened.end(), [](const std::string& line) {
                    return line.starts_with("getDeviceList");
                })};
    }

    std::size_t panels_with(const std::string& key) const {
        return log.count("panel error [error] " + key);
    }

    void expect_told() {
        const lines change = until_refresh();
        const auto first_write = std::find_if(change.begin(), change.end(), is_write);
        const auto kept = std::find(change.begin(), change.end(), "copy kept");
        const bool restarted = log.count("krWarmBoot") > 0;
        if (kept == change.end()) {
            EXPECT_EQ(first_write, change.end()) << "written without a safety copy";
            EXPECT_EQ(panels_with(GetParam().error), 0U);
            EXPECT_EQ(log.count("getDeviceList"), 1U) << "nothing done, and nothing read again";
            return;
        }
        EXPECT_LT(kept, first_write);
        EXPECT_EQ(panels_with(GetParam().error), restarted ? 0U : 1U);
    }

    void expect_bears(const fault& kind, int nth) {
        SCOPED_TRACE(kind.name + " in call " + std::to_string(nth));
        take_disks();
        plan(kind, nth);
        press();
        expect_told();
        constexpr int calls_of_comparison = 4;
        if (!kind.lies() && nth <= calls_of_comparison && struck == "krGetDiskIdentify") {
            EXPECT_EQ(log.count("copy kept"), 0U) << "begun on disks that are not known";
        }
        EXPECT_TRUE(window->idle());
        EXPECT_TRUE(gate_attempt(j.gate)) << "somebody still holds the gate";
        if (!kind.lies()) {
            EXPECT_EQ(log.count("leave(3)"), struck == "openConnection" ? 1U : 0U) << struck;
        }
    }

    // A lie is none in a call that carries no bytes.
    bool happened_to(const fault& kind) const {
        return !struck.empty() && (carries_bytes || !kind.lies());
    }

    // Of the 64 sectors that are wiped one after the other a few stand for all.
    static int after(int nth) { return nth < 16 || nth > 250 ? nth + 1 : nth + 17; }

    memory_enclosure before;
    std::string struck;         // the call, or nothing
    bool carries_bytes = false; // that call
    lines happened;
};

std::string name_of(const testing::TestParamInfo<pressed_button>& info) {
    return info.param.name;
}

std::vector<pressed_button> every_button() {
    return {{"Create", 1, 0, &controller::confirmbutton, "raid_create_error"},
            {"Delete", 0, 1, &controller::clearconfigbutton, "raid_delete_error"},
            {"DeleteMirror", 0, 2, &controller::clearconfigbutton, "raid_delete_error"},
            {"Rebuild0To1", 0, 2, &controller::rebuild0to1button, "rebuild_error"},
            {"Rebuild1To0", 0, 2, &controller::rebuild1to0button, "rebuild_error"},
            {"Wipe0", 0, 2, &controller::cleardisk0button, "raid_info_delete_error"},
            {"Wipe1", 0, 2, &controller::cleardisk1button, "raid_info_delete_error"}};
}

} // namespace

TEST_P(ChangeByButton, IsToldAsItEndedAndNeverWithoutASafetyCopy) {
    int cases = 0;
    for (const fault& kind : every_fault()) {
        if (kind.what == fault::effect::hanging) {
            continue; // to the window the same as a failure
        }
        struck = "not yet";
        for (int nth = 1; !struck.empty() && !HasFailure(); nth = after(nth)) {
            expect_bears(kind, nth);
            cases += happened_to(kind) ? 1 : 0;
        }
    }
    std::cout << "\n" << GetParam().name << ": " << cases << " cases\n";
}

INSTANTIATE_TEST_SUITE_P(Every, ChangeByButton, testing::ValuesIn(every_button()), name_of);
