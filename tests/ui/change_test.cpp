// What the user's buttons do to the array: asked, confirmed, carried out.
#include <QPushButton>
#include <gmock/gmock.h>

#include "app/plan_text.h"
#include "app/radio_matrix.h"
#include "app/window_extras.h"
#include "tests/ui/window_test.h"

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const std::string asked = "panel warning [warning] all_data_lost (ok) (cancel)";

class change : public window_test {
protected:
    void SetUp() override {
        window_test::SetUp();
        take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    }

    void take_mirror() {
        forget_all();
        take_chip(member_a(mode_raid1), member_b(mode_raid1));
    }

    // One bridge with a serial number, read by the window.
    void read_named_bridge() {
        forget_all();
        attach(device, usb_bridge(1, 2, 0x100, u"ABC"), memory_disk(disk_a()),
               memory_disk(disk_b()));
        window->refresh();
    }

    // Presses a button as far as it can be pressed now.
    void press(QPushButton* button) {
        button->setEnabled(true);
        take_outlets();
        log.clear();
        button->click();
    }

    // Everything that can be asked for with a panel.
    std::vector<QPushButton*> all_buttons() const {
        return {window->confirmbutton,     window->clearconfigbutton, window->rebuild0to1button,
                window->rebuild1to0button, window->cleardisk0button,  window->cleardisk1button};
    }

    std::size_t writes() const { return log.count("krSetRaidInfo"); }
    std::size_t restarts() const { return log.count("krWarmBoot"); }

    // Panels and safety copies, in their order.
    lines talk() const {
        lines said;
        for (const std::string& line : log.lines(from_window)) {
            if (line.rfind("panel ", 0) == 0 || line.rfind("copy ", 0) == 0) {
                said.push_back(line);
            }
        }
        return said;
    }

    // The library calls before the first of that name.
    lines until(const std::string& name) const {
        lines calls = log.lines(from_library);
        const auto end = std::find_if(calls.begin(), calls.end(), [&](const std::string& line) {
            return line.rfind(name, 0) == 0;
        });
        calls.erase(end, calls.end());
        return calls;
    }

    // Notes what was written to the outlets before the first sector is written.
    void watch_first_write() {
        library.on_nth("krSetRaidInfo", 1, [this] { before_first_write = outlet_log; });
    }

    void change_disk(int port, const std::function<void(krdisk&)>& how) {
        const lock_scope lock(j.records);
        how(j.chips[0].disks[static_cast<std::size_t>(port)]);
    }

    lines before_first_write;
};

const lines all_disabled = {"rebuild0to1button: disabled", "rebuild1to0button: disabled",
                            "confirmbutton: disabled",     "cleardisk0button: disabled",
                            "cleardisk1button: disabled",  "clearconfigbutton: disabled"};

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

class swapped : public change {
protected:
    // Nothing at all may follow the confirmation.
    void expect_nothing_done(QPushButton* button, const std::function<void()>& meanwhile) {
        take_mirror();
        panels.while_open([this, meanwhile] {
            meanwhile();
            log.clear();
        });
        press(button);
        panels.while_open({});
        EXPECT_THAT(log.lines(), IsEmpty()) << button->objectName().toStdString();
        EXPECT_THAT(take_outlets(), IsEmpty());
    }
};

TEST_F(swapped, DiskUnderAnOpenPanelMeansThatNothingIsWritten) {
    for (QPushButton* button : all_buttons()) {
        for (const int port : {0, 1}) {
            expect_nothing_done(button, [this, port] {
                change_disk(port, [](krdisk& disk) { disk.identify_serial_raw[3] ^= 1; });
            });
            expect_nothing_done(button, [this, port] {
                change_disk(port, [](krdisk& disk) { disk.present = 0; });
            });
        }
    }
}

TEST_F(swapped, ControllerUnderAnOpenPanelMeansThatNothingIsWritten) {
    for (QPushButton* button : all_buttons()) {
        expect_nothing_done(button, [] {
            const lock_scope lock(j.records);
            j.current = j.chips[0].identity = usb_identity(0x99);
        });
        expect_nothing_done(button, [] {
            const lock_scope lock(j.records);
            j.chips.clear();
        });
    }
}

TEST_F(swapped, ArrayThatIsNoMirrorAnyMoreUnderAnOpenPanelIsNotDeleted) {
    expect_nothing_done(window->clearconfigbutton, [] {
        const lock_scope lock(j.records);
        j.chips[0].raid_mode = mode_raid0;
    });
}

TEST_F(swapped, DiskThatToldNobodyIsFoundOutAndEverythingIsReadAgain) {
    for (QPushButton* button : all_buttons()) {
        for (const std::size_t port : {0U, 1U}) {
            for (const bool pulled : {true, false}) {
                take_mirror();
                panels.while_open([this, pulled, port] {
                    library.with_bridges([pulled, port](memory_enclosure& all) {
                        const memory_disk other(port == 0 ? disk_b() : disk_a());
                        all.bridge(device).disks[port] =
                            pulled ? std::nullopt : std::optional(other);
                    });
                    panels.while_open({});
                });
                press(button);
                // Only what every reading of a lone mirror member does comes after it.
                EXPECT_THAT(until("getDeviceList"), Each(Not(HasSubstr("krSet"))));
                EXPECT_EQ(log.count("copy "), 0U) << button->objectName().toStdString();
                EXPECT_EQ(log.count("getDeviceList"), 1U) << "the window shows what is there now";
            }
        }
    }
}

TEST_F(swapped, DiskExchangedWhileAMonitorsPanelHoldsUpTheChangeIsFoundOut) {
    take_mirror();
    threads.reset(); // the thread for hot-plug events stays away
    {
        const gate_scope work(j.gate);
        j.chips[0].start_raid1_timer();
    }
    ASSERT_EQ(threads.waiting(), 1U);
    // While the change waits for the timer to end.
    pause.on_nth(1, [this] {
        library.with_bridges(
            [](memory_enclosure& all) { all.bridge(device).disks[1] = memory_disk(disk_a()); });
        threads.run_next();
    });
    press(window->clearconfigbutton);
    EXPECT_THAT(until("getDeviceList"), Each(Not(HasSubstr("krSet"))));
}

class without_copy : public change {
protected:
    const std::string question = "panel warning [warning] ui_copy_failed (ok) (cancel)";

    void SetUp() override {
        change::SetUp();
        copies.trouble = "no space";
    }
};

TEST_F(without_copy, TheUserIsToldAndAskedAndMayStop) {
    panels.answer(panel_default);
    panels.answer(panel_second);
    press(window->clearconfigbutton);
    EXPECT_THAT(talk(), ElementsAre(asked, "copy not kept", question));
    EXPECT_EQ(writes(), 0U);
    EXPECT_EQ(log.count("getDeviceList"), 1U) << "which starts the monitors again";
}

TEST_F(without_copy, TheUserMayGoOn) {
    press(window->clearconfigbutton);
    EXPECT_THAT(talk(), ElementsAre(asked, "copy not kept", question));
    EXPECT_EQ(writes(), 130U);
}

TEST_F(without_copy, DiskSwappedUnderTheSecondQuestionMeansThatNothingIsWritten) {
    int open = 0;
    panels.while_open([&] {
        if (++open == 2) {
            change_disk(0, [](krdisk& disk) { disk.identify_serial_raw[0] ^= 1; });
        }
    });
    press(window->clearconfigbutton);
    EXPECT_EQ(open, 2);
    EXPECT_EQ(writes(), 0U);
}

TEST_F(without_copy, DiskExchangedUnderTheSecondQuestionIsFoundOut) {
    int open = 0;
    panels.while_open([&] {
        if (++open == 2) {
            library.with_bridges(
                [](memory_enclosure& all) { all.bridge(device).disks[1] = memory_disk(disk_a()); });
        }
    });
    press(window->clearconfigbutton);
    EXPECT_EQ(writes(), 0U);
    EXPECT_EQ(log.count("getDeviceList"), 1U);
}

class in_use : public change {
protected:
    const std::string refusal = "panel warning [warning] ui_volume_in_use ui_remedy_unmount "
                                "ui_try_again (ok)";

    // Nothing reached the enclosure, and nothing but panels the window.
    void expect_nothing_done(const lines& panels_shown) {
        EXPECT_EQ(talk(), panels_shown);
        EXPECT_EQ(log.lines(from_window), panels_shown) << "nor a safety copy";
        EXPECT_THAT(log.lines(from_library), IsEmpty());
        EXPECT_THAT(take_outlets(), IsEmpty());
    }
};

TEST_F(in_use, VolumeKeepsEveryChangeFromBeingMadeWhateverIsAnswered) {
    for (const int answer : {panel_default, panel_second, panel_failed}) {
        for (QPushButton* button : all_buttons()) {
            SCOPED_TRACE(button->objectName().toStdString());
            take_mirror();
            volumes.mount(device, "/media/a");
            panels.answer(answer);
            press(button);
            expect_nothing_done({refusal});
            EXPECT_TRUE(window->idle());
        }
    }
}

TEST_F(in_use, VolumeIsNamedBesideThePlan) {
    texts.set("ui_use_mounted", "%1 at %2");
    texts.set("ui_use_held", "%1 by %2");
    texts.set("ui_plan_refused", "Not done: %1");
    volumes.use(device, {{volume_use_kind::mounted, "luks-home", "/home"},
                         {volume_use_kind::held, "sdb1", "luks-home"}});
    press(window->cleardisk1button);
    EXPECT_THAT(panels.last.lines, ElementsAre("luks-home at /home", "sdb1 by luks-home"));
    ASSERT_TRUE(panels.last.plan.has_value());
    EXPECT_EQ(panels.last.plan->heading, "Not done: ui_plan_wipe_disk_2");
    EXPECT_EQ(panels.last.plan->cards[1].fate, "ui_plan_all_lost");
}

TEST_F(in_use, VolumeOfAnotherEnclosureKeepsNothingFromBeingDone) {
    volumes.mount(0x12, "/media/other");
    press(window->cleardisk0button);
    EXPECT_THAT(talk(), ElementsAre(asked, "copy kept"));
    EXPECT_TRUE(panels.last.lines.empty());
    EXPECT_EQ(writes(), 65U);
}

TEST_F(in_use, VolumeThatIsMountedUnderTheQuestionIsFoundOutAndNothingIsWritten) {
    for (QPushButton* button : all_buttons()) {
        SCOPED_TRACE(button->objectName().toStdString());
        take_mirror();
        volumes.use(device, {});
        panels.while_open([this] {
            volumes.mount(device, "/media/a");
            panels.while_open({});
        });
        press(button);
        const lines said = talk();
        ASSERT_EQ(said.size(), 2U);
        expect_nothing_done({said.front(), refusal});
        EXPECT_THAT(panels.last.lines, ElementsAre("ui_use_mounted"));
        EXPECT_FALSE(panels.last.plan.has_value());
    }
}

TEST_F(in_use, VolumeThatIsMountedUnderTheQuestionLeavesTheMonitorsAlone) {
    take_mirror();
    threads.reset(); // the thread for hot-plug events stays away
    {
        const gate_scope work(j.gate);
        j.chips[0].start_raid1_timer();
    }
    panels.while_open([this] { volumes.mount(device, "/media/a"); });
    press(window->clearconfigbutton);
    EXPECT_TRUE(j.chips[0].raid1_timer_on);
    EXPECT_EQ(log.lines(from_library), lines());
}

TEST_F(in_use, VolumeThatIsMountedWhileTheDisksAreAskedIsFoundOutToo) {
    for (QPushButton* button : all_buttons()) {
        SCOPED_TRACE(button->objectName().toStdString());
        take_mirror();
        volumes.use(device, {});
        pause.on_nth(1, [this] { volumes.mount(device, "/media/a"); });
        press(button);
        EXPECT_EQ(talk().back(), refusal);
        EXPECT_EQ(log.count("copy "), 0U);
        EXPECT_THAT(until("getDeviceList"), Each(Not(HasSubstr("krSet"))));
        EXPECT_EQ(restarts(), 0U);
        EXPECT_EQ(log.count("getDeviceList"), 1U) << "which starts the monitors again";
    }
}

TEST_F(in_use, VolumeOfAnEnclosureThatHasBeenOvertakenIsNotSpokenOf) {
    panels.while_open([this] {
        volumes.mount(device, "/media/a");
        change_disk(0, [](krdisk& disk) { disk.identify_serial_raw[3] ^= 1; });
    });
    press(window->clearconfigbutton);
    expect_nothing_done({asked});
}

TEST_F(in_use, VolumeThatCannotBeLookedAtCountsAsUsed) {
    volumes.use(device, {{volume_use_kind::unchecked, {}, {}}});
    press(window->clearconfigbutton);
    expect_nothing_done(
        {"panel warning [warning] ui_volume_unchecked ui_remedy_reconnect ui_try_again (ok)"});
}

TEST_F(in_use, VolumeKeepsTheFirstEnclosureFromBeingRestarted) {
    read_named_bridge();
    j.warm_boot_pending = false;
    volumes.mount(device, "/media/a");
    press(window->extras->warmbootbutton);
    expect_nothing_done({refusal});
    EXPECT_THAT(panels.last.lines, ElementsAre("ui_use_mounted"));
    EXPECT_FALSE(j.warm_boot_pending);
    EXPECT_TRUE(window->idle());
}

TEST_F(in_use, VolumeThatIsMountedWhileAMonitorHoldsUpTheRestartIsFoundOut) {
    read_named_bridge();
    {
        const lock_scope lock(j.records);
        j.chips[0].raid1_timer_alive = true; // until nobody waits for it any longer
    }
    j.warm_boot_pending = false;
    volumes.on_nth_look(2, [this] { volumes.mount(device, "/media/a"); });
    press(window->extras->warmbootbutton);
    EXPECT_EQ(talk().back(), refusal);
    EXPECT_EQ(restarts(), 0U);
    EXPECT_FALSE(j.warm_boot_pending);
    EXPECT_EQ(log.count("getDeviceList"), 1U) << "which starts the monitors again";
}

TEST_F(in_use, VolumeThatIsMountedWhileTheCopyIsKeptIsFoundOutToo) {
    take_mirror();
    copies.while_kept = [this] { volumes.mount(device, "/media/a"); };
    press(window->clearconfigbutton);
    EXPECT_EQ(talk().back(), refusal);
    EXPECT_EQ(writes(), 0U);
    EXPECT_EQ(log.count("getDeviceList"), 1U) << "which starts the monitors again";
}

TEST_F(in_use, VolumeOfTheSelectedEnclosureDoesNotMatterToTheRestartOfTheFirst) {
    forget_all();
    attach(device, usb_bridge(1, 2, 0x100, u"ABC"), memory_disk(disk_a()), memory_disk(disk_b()));
    attach(0x12, usb_bridge(1, 2, 0x200, u"DEF"), memory_disk(disk_a()), memory_disk(disk_b()));
    window->refresh();
    ASSERT_EQ(j.chips.size(), 2U);
    {
        const lock_scope lock(j.records);
        j.current = j.chips[1].identity;
    }
    volumes.mount(j.chips[1].device, "/media/a");
    press(window->extras->warmbootbutton);
    EXPECT_EQ(restarts(), 1U);
    volumes.mount(j.chips[0].device, "/media/b");
    press(window->extras->warmbootbutton);
    expect_nothing_done({refusal});
}

TEST_F(without_copy, VolumeMountedUnderTheSecondQuestionIsFoundOut) {
    int open = 0;
    panels.while_open([&] {
        if (++open == 2) {
            volumes.mount(device, "/media/a");
        }
    });
    press(window->clearconfigbutton);
    EXPECT_EQ(open, 3) << "and told";
    EXPECT_EQ(writes(), 0U);
    EXPECT_EQ(log.count("getDeviceList"), 1U) << "which starts the monitors again";
}

TEST_F(change, SafetyCopyHoldsTheRecordsAsTheyWereBefore) {
    take_mirror();
    press(window->clearconfigbutton);
    EXPECT_THAT(copies.last, HasSubstr("Before: delete the array\n"));
    EXPECT_THAT(copies.last, HasSubstr("00000000: 4b 52 02 00"));
    EXPECT_THAT(copies.last, HasSubstr("00000000: 4b 52 02 01"));
}

TEST_F(change, RestartDisablesEverythingAndRestartsWithoutAQuestion) {
    read_named_bridge();
    j.warm_boot_pending = false;
    press(window->extras->warmbootbutton);
    EXPECT_THAT(log.lines(from_library), ElementsAre("krWarmBoot(0x11) = 0"));
    EXPECT_THAT(talk(), IsEmpty());
    const lines shown = take_outlets();
    EXPECT_EQ(lines(shown.begin(), shown.begin() + 6), all_disabled);
    EXPECT_TRUE(j.warm_boot_pending);
}

TEST_F(change, RestartReachesNoOtherThanTheOneThatIsNamed) {
    read_named_bridge();
    {
        const lock_scope lock(j.records);
        j.chips.front().identity = usb_identity(0x999);
    }
    press(window->extras->warmbootbutton);
    EXPECT_EQ(restarts(), 0U);
    EXPECT_THAT(take_outlets(), IsEmpty());
}

TEST_F(change, RestartControlNamesTheFirstOfTheListAndIsOffWithoutOne) {
    EXPECT_FALSE(window->extras->warmbootbutton->isEnabled());
    texts.set("ui_restart_named", "Restart %1");
    read_named_bridge();
    EXPECT_TRUE(window->extras->warmbootbutton->isEnabled());
    EXPECT_THAT(window->extras->warmbootbutton->accessibleName().toStdString(),
                HasSubstr("Restart "));
    EXPECT_THAT(window->extras->warmbootbutton->accessibleName().toStdString(),
                HasSubstr("(S/N: ABC)"));
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
