// In which order the status display writes to the window's outlets.
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeView>
#include <gmock/gmock.h>

#include "app/radio_matrix.h"
#include "app/text_field.h"
#include "tests/ui/window_test.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

lines operator+(lines first, const lines& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

const lines repaint = {"disk0modefield: needs display",    "disk0serialfield: needs display",
                       "disk0modelfield: needs display",   "disk0sizefield: needs display",
                       "disk1modelfield: needs display",   "disk1serialfield: needs display",
                       "disk1modefield: needs display",    "disk1sizefield: needs display",
                       "cleardisk0button: needs display",  "cleardisk1button: needs display",
                       "rebuilddisk0field: needs display", "rebuilddisk1field: needs display",
                       "rebuild0to1button: needs display", "rebuild1to0button: needs display",
                       "disk0oldnewlabel: needs display",  "disk1oldnewlabel: needs display",
                       "disk0picmodefield: needs display", "disk1picmodefield: needs display",
                       "raidmodelabel: needs display",     "disk0caplabel: needs display",
                       "disk0cappicture: needs display",   "disk0label: needs display",
                       "disk1caplabel: needs display",     "disk1cappicture: needs display",
                       "disk1label: needs display",        "levelindicator: needs display",
                       "rebuildlabel: needs display",      "percentagefield: needs display"};

const lines buttons_off = {"rebuild0to1button: disabled", "rebuild1to0button: disabled",
                           "confirmbutton: disabled",     "cleardisk0button: disabled",
                           "cleardisk1button: disabled",  "clearconfigbutton: disabled"};

const lines blank = lines{"tree: hidden",
                          "disk0modelfield: text \"\"",
                          "disk0serialfield: text \"\"",
                          "disk0modefield: text \"\"",
                          "disk0sizefield: text \"\"",
                          "disk1modelfield: text \"\"",
                          "disk1serialfield: text \"\"",
                          "disk1modefield: text \"\"",
                          "disk1sizefield: text \"\"",
                          "cleardisk0button: disabled",
                          "cleardisk0button: hidden",
                          "cleardisk1button: disabled",
                          "cleardisk1button: hidden",
                          "rebuilddisk0field: text \"\"",
                          "rebuilddisk1field: text \"\"",
                          "rebuild0to1button: disabled",
                          "rebuild1to0button: disabled",
                          "disk0oldnewlabel: text \"\"",
                          "disk1oldnewlabel: text \"\"",
                          "disk0picmodefield: text \"\"",
                          "disk1picmodefield: text \"\"",
                          "raidmodelabel: text \"\"",
                          "disk0caplabel: text \"\"",
                          "disk0cappicture: hidden",
                          "disk0label: text \"\"",
                          "disk1caplabel: text \"\"",
                          "disk1cappicture: hidden",
                          "disk1label: text \"\"",
                          "rebuild1to0button: disabled",
                          "rebuild0to1button: disabled",
                          "levelindicator: hidden",
                          "rebuildlabel: hidden",
                          "percentagefield: hidden",
                          "tabview: selects 0",
                          "rebuild1to0button: highlight NO",
                          "rebuild1to0button: highlight NO",
                          "rebuild0to1button: image none",
                          "rebuild1to0button: image none"} +
                    repaint + buttons_off + lines{"mainview: needs display"};

const lines start_of_update = blank + buttons_off;
const lines end_of_update = {"tree: shown", "mainview: needs display"};

class status_order : public window_test {
protected:
    // The lines of an update that come behind those that every update begins with.
    lines update() {
        take_outlets();
        window->update_raid_information();
        lines all = take_outlets();
        EXPECT_GE(all.size(), start_of_update.size());
        const auto end = all.begin() + static_cast<std::ptrdiff_t>(start_of_update.size());
        EXPECT_EQ(lines(all.begin(), end), start_of_update);
        return {end, all.end()};
    }
};

TEST_F(status_order, RepaintNamesTwentyEightOutletsInTheirOrder) {
    window->refreshgui();
    EXPECT_EQ(take_outlets(), repaint);
    EXPECT_EQ(repaint.size(), 28U);
}

TEST_F(status_order, BlankStateIsMadeInItsOrder) {
    window->cleargui();
    EXPECT_EQ(take_outlets(), blank);
}

TEST_F(status_order, RebuildProgressIsRevealed) {
    window->showrebuildbuttons();
    EXPECT_THAT(take_outlets(), ElementsAre("levelindicator: shown", "rebuildlabel: shown",
                                            "percentagefield: shown"));
}

TEST_F(status_order, UpdateWithoutChipsStaysBlankWithTheTreeHidden) {
    EXPECT_THAT(update(), IsEmpty());
    EXPECT_TRUE(window->tree->isHidden());
    EXPECT_THAT(take_panels(), IsEmpty());
}

TEST_F(status_order, UpdateForAControllerThatIsNotThereStaysBlank) {
    show_chip([](krchip& chip) { put_disk(chip.disks[0], 2'000'000, mode_raid1); });
    {
        const lock_scope lock(j.records);
        j.current = usb_identity(0x77);
    }
    EXPECT_THAT(update(), IsEmpty());
    EXPECT_THAT(take_panels(), IsEmpty());
}

TEST_F(status_order, ChipWithoutDisksShowsTheTreeAlone) {
    show_chip([](krchip&) {});
    EXPECT_EQ(update(), end_of_update);
}

TEST_F(status_order, SingleDisksAreShownOneAfterTheOther) {
    show_chip([](krchip& chip) {
        put_disk(chip.disks[0], 2'000'000, mode_raid0, 1'000'000);
        put_disk(chip.disks[1], 2'000'000);
        chip.disks[0].member_mismatch = 1;
    });
    EXPECT_EQ(update(), (lines{"showdiskguibutton: enabled",
                               "disk0modelfield: text \"MODEL\"",
                               "disk0serialfield: text \"SERIAL\"",
                               "disk0sizefield: text \"1 GB\"",
                               "rebuilddisk0field: text \"raid_0\"",
                               "cleardisk0button: enabled",
                               "cleardisk0button: shown",
                               "disk0modefield: text \"raid_0broken\"",
                               "disk0caplabel: text \"0 GB\"",
                               "disk0cappicture: shown",
                               "disk0label: text \"disk_1\"",
                               "disk0picmodefield: text \"raid_0broken\"",
                               "showdiskguibutton: enabled",
                               "disk1modelfield: text \"MODEL\"",
                               "disk1serialfield: text \"SERIAL\"",
                               "disk1sizefield: text \"1 GB\"",
                               "rebuilddisk1field: text \"not_config\"",
                               "disk1modefield: text \"not_config\"",
                               "disk1caplabel: text \"1 GB\"",
                               "disk1cappicture: shown",
                               "disk1label: text \"disk_2\"",
                               "confirmbutton: enabled"} +
                         end_of_update));
    EXPECT_THAT(take_panels(), ElementsAre("panel attention [attention] raid_info_conflict (ok)"));
}

TEST_F(status_order, ConfiguredStripeIsShownAsOneVolume) {
    show_chip([](krchip& chip) {
        put_disk(chip.disks[0], 2'000'000, mode_raid0);
        put_disk(chip.disks[1], 2'000'000, mode_raid0);
        chip.raid_valid = 1;
        chip.raid_mode = mode_raid0;
        chip.raid_capacity = 4'000'000;
    });
    const lines shown = update();
    EXPECT_EQ(
        lines(shown.end() - 12, shown.end()),
        (lines{"confirmbutton: enabled", "clearconfigbutton: enabled",
               "disk0caplabel: text \"2 GB\"", "disk1caplabel: text \"\"", "disk0label: text \"\"",
               "disk1label: text \"\"", "disk0cappicture: shown", "disk1cappicture: hidden",
               "raidmodelabel: text \"raid_0\"", "confirmbutton: enabled"} +
         end_of_update));
    EXPECT_EQ(window->raidmodelabel->text(), QStringLiteral("raid_0"));
    EXPECT_EQ(window->disk0modefield->text(), QStringLiteral("raid_0"));
    EXPECT_EQ(window->disk1modefield->text(), QStringLiteral("raid_0"));
    EXPECT_FALSE(window->disk0cappicture->isHidden());
    EXPECT_TRUE(window->disk1cappicture->isHidden());
    EXPECT_TRUE(window->confirmbutton->isEnabled());
    EXPECT_TRUE(window->clearconfigbutton->isEnabled());
    EXPECT_TRUE(window->cleardisk0button->isHidden());
    EXPECT_TRUE(window->cleardisk1button->isHidden());
}

TEST_F(status_order, DegradeAlertComesBeforeConflictAlertAndTheRebuildTabAfterBoth) {
    show_chip([](krchip& chip) {
        put_disk(chip.disks[0], 2'000'000, mode_raid1, 1'000'000);
        put_disk(chip.disks[1], 1'000'000);
        chip.disks[0].raid1_orphan = 1;
        chip.rebuild_possible = 1;
    });
    std::vector<int> front;
    panels.while_open([&] { front.push_back(window->tabview->selected()); });
    const lines shown = update();
    EXPECT_THAT(take_panels(), ElementsAre("panel attention [attention] raid1_degrade_mode (ok)",
                                           "panel attention [attention] raid_info_conflict (ok)"));
    EXPECT_THAT(front, ElementsAre(0, 0));
    EXPECT_EQ(lines(shown.end() - 3, shown.end()), lines{"tabview: selects 1"} + end_of_update);
    EXPECT_EQ(window->tabview->selected(), 1);
    EXPECT_TRUE(window->rebuild0to1button->isEnabled());
}

TEST_F(status_order, TreeStaysHiddenWhileAnAlertIsOpen) {
    show_chip([](krchip& chip) {
        put_disk(chip.disks[0], 2'000'000, mode_raid1);
        chip.disks[0].raid1_orphan = 1;
    });
    bool hidden = false;
    panels.while_open([&] { hidden = window->tree->isHidden(); });
    update();
    EXPECT_TRUE(hidden);
    EXPECT_FALSE(window->tree->isHidden());
}

TEST_F(status_order, AlertOfAnUpdateLetsOthersWork) {
    show_chip([](krchip& chip) {
        put_disk(chip.disks[0], 2'000'000, mode_raid1);
        chip.disks[0].raid1_orphan = 1;
    });
    bool free_meanwhile = false;
    panels.while_open([&] { free_meanwhile = static_cast<bool>(gate_attempt(j.gate)); });
    on_other_thread([this] {
        const gate_scope mine(j.gate);
        window->update_raid_information();
        EXPECT_TRUE(j.gate.held_here());
    });
    EXPECT_TRUE(free_meanwhile);
}

TEST_F(status_order, AlertsComeWithEveryUpdate) {
    show_chip([](krchip& chip) {
        put_disk(chip.disks[0], 2'000'000, mode_raid1);
        chip.disks[0].raid1_orphan = 1;
    });
    const lines first = update();
    EXPECT_EQ(update(), first);
    EXPECT_EQ(take_panels().size(), 2U);
}

class running_rebuild : public status_order {
protected:
    void SetUp() override {
        status_order::SetUp();
        show_chip([](krchip& chip) {
            put_disk(chip.disks[0], 2'000'000, mode_raid1);
            put_disk(chip.disks[1], 2'000'000, mode_raid1);
            chip.raid_valid = 1;
            chip.raid_mode = mode_raid1;
            chip.rebuild_possible = 1;
            chip.rebuild_pending = 1;
            chip.disks[1].rebuild_mark = 1;
            chip.polling = true;
        });
        waiting_before = threads.waiting();
    }

    std::size_t waiting_before = 0;
};

TEST_F(running_rebuild, StartsThePollerThenBringsTheTabThenMarksTheDirection) {
    const lines shown = update();
    EXPECT_EQ(
        lines(shown.end() - 12, shown.end()),
        (lines{"rebuild0to1button: disabled", "rebuild1to0button: disabled",
               "levelindicator: shown", "levelindicator: enabled", "levelindicator: level 0.0",
               "levelindicator: shown", "rebuildlabel: shown", "percentagefield: shown",
               "tabview: selects 1", "rebuild1to0button: image yellow.JPG"} +
         end_of_update));
    EXPECT_FALSE(window->rebuild1to0button->icon().isNull());
    EXPECT_TRUE(window->rebuild0to1button->icon().isNull());
    EXPECT_EQ(window->tabview->selected(), 1);
}

TEST_F(running_rebuild, StartsThePollerOnce) {
    update();
    update();
    EXPECT_EQ(threads.waiting(), waiting_before + 1);
}

TEST_F(running_rebuild, WithASourceOnPortZeroMarksTheOtherButton) {
    {
        const gate_scope work(j.gate);
        const lock_scope lock(j.records);
        j.chips[0].disks[0].rebuild_mark = 1;
        j.chips[0].disks[1].rebuild_mark = 0;
    }
    EXPECT_THAT(update(), Contains("rebuild0to1button: image yellow.JPG"));
}

TEST_F(running_rebuild, ThatHasEndedMeanwhileStartsNoPoller) {
    {
        const gate_scope work(j.gate);
        const lock_scope lock(j.records);
        j.chips[0].disks[0].raid1_orphan = 1; // an alert, during which the rebuild ends
    }
    panels.while_open([] {
        const lock_scope lock(j.records);
        j.chips[0].polling = false;
    });
    update();
    EXPECT_EQ(threads.waiting(), waiting_before);
}

TEST_F(running_rebuild, OfAStripedPairIsRefusedTheTabWithAMessage) {
    {
        const gate_scope work(j.gate);
        const lock_scope lock(j.records);
        for (krdisk& disk : j.chips[0].disks) {
            disk.raid_mode = mode_raid0;
        }
        j.chips[0].rebuild_possible = 0;
    }
    update();
    EXPECT_THAT(take_panels(),
                ElementsAre("panel attention [attention] two_raid1_disks_for_rebuild (ok)"));
    EXPECT_EQ(window->tabview->selected(), 0);
}

TEST_F(status_order, UpdateFromAnotherThreadShowsTheSame) {
    show_chip([](krchip& chip) { put_disk(chip.disks[0], 2'000'000); });
    const lines here = update();
    on_other_thread([this] { window->update_raid_information(); });
    EXPECT_EQ(take_outlets(), start_of_update + here);
}

TEST_F(status_order, HostileTextsOfADiskStayPlain) {
    show_chip([](krchip& chip) {
        put_disk(chip.disks[0], 2'000'000);
        chip.disks[0].model = "<img src=\"x\">\n\x07&amp;";
        chip.disks[0].serial = std::string("S\xE4\0N", 4);
    });
    update();
    EXPECT_EQ(window->disk0modelfield->text(), QStringLiteral("<img src=\"x\">  &amp;"));
    EXPECT_EQ(window->disk0modelfield->textFormat(), Qt::PlainText);
    EXPECT_EQ(window->disk0serialfield->text(), QStringLiteral("S\u00E4"));
}

TEST_F(status_order, InformationPageRepeatsTheModes) {
    show_chip([](krchip& chip) { put_disk(chip.disks[1], 2'000'000, mode_span); });
    update();
    const auto* repeated = window->guitab->findChild<text_field*>("disk1infomode");
    ASSERT_NE(repeated, nullptr);
    EXPECT_EQ(repeated->text(), QStringLiteral("span"));
}

TEST_F(status_order, EmptyListSaysThatNoEnclosureIsAttached) {
    update();
    const auto* note = window->guitab->findChild<text_field*>("note_heading");
    ASSERT_NE(note, nullptr);
    EXPECT_EQ(note->text(), QStringLiteral("ui_no_enclosure"));
    EXPECT_FALSE(note->isHidden());
    window->cleargui();
    EXPECT_TRUE(note->isHidden());
}

} // namespace
