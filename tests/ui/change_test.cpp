// What the user's buttons do to the array: asked, confirmed, carried out.
#include <QPushButton>
#include <gmock/gmock.h>

#include "app/radio_matrix.h"
#include "app/window_extras.h"
#include "tests/ui/change_window.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using change = change_window;

lines last(const lines& all, std::size_t count) {
    return {all.end() - static_cast<std::ptrdiff_t>(std::min(count, all.size())), all.end()};
}

TEST_F(change, CreateAsksKeepsACopyClearsTheDisplayAndThenWrites) {
    watch_first_write();
    window->raidconfigradiobutton->select_row(1);
    press(window->confirmbutton);
    EXPECT_THAT(talk(), ElementsAre(asked, "copy kept"));
    EXPECT_EQ(writes(), 4U);
    EXPECT_EQ(restarts(), 1U);
    EXPECT_EQ(before_first_write.front(), "tree: hidden");
    // The progress bar goes with the monitors that are stopped first.
    lines end = all_disabled;
    end.insert(end.end(), {"levelindicator: hidden", "levelindicator: disabled"});
    EXPECT_EQ(last(before_first_write, end.size()), end);
    EXPECT_EQ(library.sector(device, 0, 1999)[2], mode_raid1);
}

TEST_F(change, DeleteClearsTheDisplayAndLeavesDisablingToIt) {
    watch_first_write();
    press(window->clearconfigbutton);
    EXPECT_THAT(talk(), ElementsAre(asked, "copy kept"));
    EXPECT_EQ(writes(), 130U);
    EXPECT_EQ(before_first_write.front(), "tree: hidden");
    EXPECT_EQ(std::count(before_first_write.begin(), before_first_write.end(),
                         "clearconfigbutton: disabled"),
              1)
        << "once, within clearing the display";
}

TEST_F(change, RebuildOfEitherDirectionAsksItsOwnQuestion) {
    take_mirror();
    press(window->rebuild0to1button);
    EXPECT_THAT(talk(),
                ElementsAre("panel warning [warning] disk1_to_disk2 (ok) (cancel)", "copy kept"));
    EXPECT_EQ(library.sector(device, 0, 1999)[4], 0x80);
    EXPECT_EQ(library.sector(device, 1, 1999)[4], 0);
    EXPECT_EQ(restarts(), 1U);

    take_mirror();
    press(window->rebuild1to0button);
    EXPECT_THAT(talk(),
                ElementsAre("panel warning [warning] disk2_to_disk1 (ok) (cancel)", "copy kept"));
    EXPECT_EQ(library.sector(device, 0, 1999)[4], 0);
    EXPECT_EQ(library.sector(device, 1, 1999)[4], 0x80);
}

TEST_F(change, WipeReachesItsOwnDiskOnly) {
    press(window->cleardisk1button);
    EXPECT_THAT(talk(), ElementsAre(asked, "copy kept"));
    EXPECT_EQ(writes(), 65U);
    EXPECT_EQ(log.count("krFlushHDDCache"), 1U);
    EXPECT_EQ(panels.last.plan->cards[0].fate, "ui_plan_untouched");
    EXPECT_EQ(panels.last.plan->cards[1].fate, "ui_plan_all_lost");
}

TEST_F(change, RefusedConfirmationChangesNothingNotEvenTheButtons) {
    take_mirror();
    for (QPushButton* button : all_buttons()) {
        panels.answer(panel_second);
        press(button);
        EXPECT_EQ(talk().size(), 1U) << button->objectName().toStdString();
        EXPECT_THAT(log.lines(from_library), IsEmpty());
        EXPECT_THAT(take_outlets(), IsEmpty());
    }
}

TEST_F(change, PanelThatFailsCountsAsRefused) {
    take_mirror();
    for (QPushButton* button : all_buttons()) {
        panels.answer(panel_failed);
        press(button);
        EXPECT_THAT(log.lines(from_library), IsEmpty());
        EXPECT_THAT(take_outlets(), IsEmpty());
    }
}

TEST_F(change, AnyOtherAnswerOfAPanelGrants) {
    panels.answer(-1);
    press(window->cleardisk0button);
    EXPECT_EQ(writes(), 65U);
}

TEST_F(change, ConfirmWithNoRowSelectedDeletesTheArrayAndThePanelSaysSo) {
    window->raidconfigradiobutton->select_row(-1);
    press(window->confirmbutton);
    EXPECT_EQ(panels.last.plan->heading, "ui_plan_delete");
    EXPECT_EQ(writes(), 130U);
    EXPECT_EQ(restarts(), 1U);
}

TEST_F(change, ConfirmWithTheLastRowDeletesTheArrayAndThePanelSaysSo) {
    window->raidconfigradiobutton->select_row(3);
    press(window->confirmbutton);
    EXPECT_EQ(panels.last.plan->heading, "ui_plan_delete");
    EXPECT_EQ(writes(), 130U);
}

TEST_F(change, RowsAreTheModesOfTheArraysInTheirOrder) {
    constexpr std::array<int, 3> modes = {mode_raid0, mode_raid1, mode_span};
    for (int row = 0; row < 3; ++row) {
        forget_all();
        take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
        window->raidconfigradiobutton->select_row(row);
        press(window->confirmbutton);
        EXPECT_EQ(library.sector(device, 0, 1999)[2], modes[static_cast<std::size_t>(row)]);
    }
}

TEST_F(change, RowIsReadBeforeThePanelOpens) {
    window->raidconfigradiobutton->select_row(1);
    panels.while_open([this] { window->raidconfigradiobutton->select_row(3); });
    press(window->confirmbutton);
    EXPECT_EQ(library.sector(device, 0, 1999)[2], mode_raid1);
}

TEST_F(change, PanelNamesTheEnclosureAsTheListDoes) {
    read_named_bridge();
    press(window->confirmbutton);
    EXPECT_THAT(panels.last.plan->enclosure, HasSubstr("(S/N: ABC)"));
}

TEST_F(change, FailedCreateIsToldAndEverythingIsReadAgain) {
    library.answer_nth("krSetRaidInfo(0x11, ", 3, {1});
    press(window->confirmbutton);
    EXPECT_THAT(talk(),
                ElementsAre(asked, "copy kept", "panel error [error] raid_create_error (ok)",
                            "panel attention [attention] raid_info_conflict (ok)"))
        << "one record has been written, and the refresh finds it";
    EXPECT_EQ(restarts(), 0U);
    EXPECT_EQ(log.count("getDeviceList"), 1U);
}

TEST_F(change, FailedDeleteIsToldAndEverythingIsReadAgain) {
    library.answer_nth("krSetRaidInfo(0x11, ", 130, {1});
    press(window->clearconfigbutton);
    EXPECT_THAT(talk(),
                ElementsAre(asked, "copy kept", "panel error [error] raid_delete_error (ok)"));
    EXPECT_EQ(restarts(), 0U);
    EXPECT_EQ(log.count("getDeviceList"), 1U);
}

TEST_F(change, RebuildFromADiskThatIsNoMirrorIsToldAndEverythingIsReadAgain) {
    press(window->rebuild0to1button);
    EXPECT_THAT(talk(), ElementsAre("panel warning [warning] disk1_to_disk2 (ok) (cancel)",
                                    "copy kept", "panel error [error] rebuild_error (ok)"));
    EXPECT_EQ(writes(), 0U);
    EXPECT_EQ(log.count("getDeviceList"), 1U);
}

TEST_F(change, FailedWipeIsToldAndNothingIsReadAgain) {
    library.answer_nth("krSetRaidInfo(0x11, ", 65, {1});
    press(window->cleardisk0button);
    EXPECT_THAT(talk(),
                ElementsAre(asked, "copy kept", "panel error [error] raid_info_delete_error (ok)"));
    EXPECT_EQ(log.count("getDeviceList"), 0U);
}

// The comparison's calls, the change's and, after an error, those of the refresh.
TEST_F(change, EveryButtonBearsAFailureOfAnyOneLibraryCall) {
    for (QPushButton* button : all_buttons()) {
        SCOPED_TRACE(button->objectName().toStdString());
        take_mirror();
        press(button);
        const std::size_t calls = log.lines(from_library).size();
        for (std::size_t nth = 1; nth <= calls && !HasFailure(); ++nth) {
            SCOPED_TRACE("call " + std::to_string(nth));
            take_mirror();
            library.answer_nth("", static_cast<int>(nth), {nth % 2 == 0 ? 1 : -1});
            press(button);
            EXPECT_TRUE(window->idle());
            EXPECT_TRUE(gate_attempt(j.gate)) << "somebody still holds the gate";
            EXPECT_LE(restarts(), 1U);
        }
    }
}

TEST_F(change, WipeOfAnEmptyBayAsksAndThenDoesNothing) {
    change_disk(1, [](krdisk& disk) { disk.present = 0; });
    press(window->cleardisk1button);
    EXPECT_THAT(talk(), ElementsAre(asked));
    EXPECT_THAT(log.lines(from_library), IsEmpty());
    EXPECT_THAT(take_outlets(), IsEmpty());
}

TEST_F(change, WipeWithoutAnyChipAsksNothing) {
    {
        const gate_scope work(j.gate);
        const lock_scope lock(j.records);
        j.chips.clear();
    }
    press(window->cleardisk0button);
    press(window->cleardisk1button);
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(change, CreateForAControllerThatIsNotThereIsAnErrorWithoutAWrite) {
    {
        const gate_scope work(j.gate);
        const lock_scope lock(j.records);
        j.current = usb_identity(0x77);
    }
    press(window->confirmbutton);
    EXPECT_FALSE(panels.last.plan.has_value());
    EXPECT_EQ(writes(), 0U);
    EXPECT_THAT(talk(), ElementsAre(asked, "panel error [error] raid_create_error (ok)"));
}

TEST_F(change, SafetyCopyHoldsTheRecordsAsTheyWereBefore) {
    take_mirror();
    press(window->clearconfigbutton);
    EXPECT_THAT(copies.last, HasSubstr("Before: delete the array\n"));
    EXPECT_THAT(copies.last, HasSubstr("00000000: 4b 52 02 00"));
    EXPECT_THAT(copies.last, HasSubstr("00000000: 4b 52 02 01"));
}

TEST_F(change, ReplacementTooSmallKeepsTheButtonOffAndTheTipSaysByHowMuch) {
    texts.set("ui_too_small_for_rebuild_2", "Disk 2 is too small by %1 sectors.");
    forget_all();
    show_chip([](krchip& chip) {
        put_disk(chip.disks[0], 2'000'000, mode_raid1, 1'999'984);
        put_disk(chip.disks[1], 1'999'983);
    });
    window->update_raid_information();
    EXPECT_FALSE(window->rebuild0to1button->isEnabled());
    EXPECT_EQ(window->rebuild0to1button->accessibleDescription(),
              QStringLiteral("Disk 2 is too small by 1 sectors."));
    EXPECT_EQ(window->rebuild1to0button->accessibleDescription(),
              QStringLiteral("ui_reason_no_mirror"));
}

} // namespace
