// Changes and restarts while the volume of the enclosure is in use.
#include <QPushButton>
#include <gmock/gmock.h>

#include "app/plan_text.h"
#include "app/window_extras.h"
#include "tests/ui/change_window.h"

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class in_use : public change_window {
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

} // namespace
