// The small operations of the window: buttons, progress, messages, the choice of an array.
#include <QLocale>
#include <QPushButton>
#include <clocale>
#include <gmock/gmock.h>

#include "app/level_indicator.h"
#include "app/radio_matrix.h"
#include "app/text_field.h"
#include "app/working_indicator.h"
#include "tests/ui/window_test.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class action : public window_test {
protected:
    QString percentage() const { return window->percentagefield->text(); }
    void set_pair(bool second_present, bool polling) {
        show_chip([&](krchip& chip) {
            put_disk(chip.disks[0], 2'000'000);
            put_disk(chip.disks[1], 2'000'000);
            chip.disks[1].present = second_present ? 1 : 0;
            chip.polling = polling;
        });
    }
};

TEST_F(action, DisablingTheRebuildButtonsLeavesTheOthersAlone) {
    window->disablegui(true);
    EXPECT_THAT(take_outlets(),
                ElementsAre("rebuild0to1button: disabled", "rebuild1to0button: disabled"));
}

TEST_F(action, DisablingEverythingGoesInItsOrder) {
    window->disablegui(false);
    EXPECT_THAT(take_outlets(),
                ElementsAre("rebuild0to1button: disabled", "rebuild1to0button: disabled",
                            "confirmbutton: disabled", "cleardisk0button: disabled",
                            "cleardisk1button: disabled", "clearconfigbutton: disabled"));
}

TEST_F(action, EnablingIsTheCounterpart) {
    window->enablegui(true);
    EXPECT_THAT(take_outlets(),
                ElementsAre("rebuild0to1button: enabled", "rebuild1to0button: enabled"));
    window->enablegui(false);
    EXPECT_THAT(take_outlets(),
                ElementsAre("rebuild0to1button: enabled", "rebuild1to0button: enabled",
                            "confirmbutton: enabled", "cleardisk0button: enabled",
                            "cleardisk1button: enabled", "clearconfigbutton: enabled"));
}

TEST_F(action, ProgressBarStartsAtNothingAndKeepsItsValueWhenItStops) {
    window->startprogressbar();
    EXPECT_THAT(take_outlets(), ElementsAre("levelindicator: shown", "levelindicator: enabled",
                                            "levelindicator: level 0.0"));
    window->updatepoll(1000, 500, false);
    take_outlets();
    window->stopprogressbar();
    EXPECT_THAT(take_outlets(), ElementsAre("levelindicator: hidden", "levelindicator: disabled"));
    EXPECT_EQ(window->levelindicator->level(), 50.0);
    EXPECT_EQ(percentage(), QStringLiteral("50.0%"));
}

TEST_F(action, ProgressIsShownWithOneDecimal) {
    window->updatepoll(3000, 1000, false);
    EXPECT_THAT(take_outlets(),
                ElementsAre("levelindicator: level 33.3", "percentagefield: text \"33.3%\""));
}

TEST_F(action, ProgressStaysAt99UntilTheRebuildIsFinished) {
    window->updatepoll(1000, 1000, false);
    EXPECT_EQ(percentage(), QStringLiteral("99.0%"));
    window->updatepoll(1000, 995, false);
    EXPECT_EQ(percentage(), QStringLiteral("99.0%"));
    window->updatepoll(1000, 1000, true);
    EXPECT_EQ(percentage(), QStringLiteral("100.0%"));
    EXPECT_EQ(window->levelindicator->level(), 100.0);
}

TEST_F(action, ReadingBeyondTwiceTheEndChangesNothing) {
    window->updatepoll(1000, 250, false);
    take_outlets();
    window->updatepoll(1000, 2010, false);
    window->updatepoll(1000, 5000, true);
    EXPECT_THAT(take_outlets(), IsEmpty());
    EXPECT_EQ(percentage(), QStringLiteral("25.0%"));
}

TEST_F(action, ReadingOfJustTwiceTheEndIsShown) {
    window->updatepoll(1000, 2009, true);
    EXPECT_EQ(percentage(), QStringLiteral("200.9%"));
    EXPECT_EQ(window->levelindicator->level(), 100.0);
}

TEST_F(action, EndOfZeroChangesNothingUntilTheRebuildIsFinished) {
    window->updatepoll(0, 0, false);
    EXPECT_THAT(take_outlets(), IsEmpty());
    window->updatepoll(0, 0, true);
    EXPECT_EQ(percentage(), QStringLiteral("100.0%"));
}

TEST_F(action, HugeReadingsWrapAndAreSafe) {
    window->updatepoll(~std::uint64_t{0}, ~std::uint64_t{0}, false);
    EXPECT_EQ(percentage(), QStringLiteral("1.0%"));
    window->updatepoll(1, ~std::uint64_t{0}, true);
    EXPECT_EQ(percentage(), QStringLiteral("1.0%"));
}

TEST_F(action, LanguageOfTheUserNeverPutsACommaIntoThePercentage) {
    // NOLINTBEGIN(concurrency-mt-unsafe): the window's other thread never runs here
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr) << "run it through ctest";
    QLocale::setDefault(QLocale(QLocale::German));
    window->updatepoll(1000, 1000, false);
    EXPECT_EQ(percentage(), QStringLiteral("99.0%"));
    QLocale::setDefault(QLocale::c());
    std::setlocale(LC_ALL, "C");
    // NOLINTEND(concurrency-mt-unsafe)
}

TEST_F(action, BusyIndicatorIsSeenOnlyWhileItTurns) {
    EXPECT_TRUE(window->workingindicator->isHidden());
    window->startworking();
    EXPECT_TRUE(window->workingindicator->animated());
    EXPECT_FALSE(window->workingindicator->isHidden());
    window->stopworking();
    EXPECT_FALSE(window->workingindicator->animated());
    EXPECT_TRUE(window->workingindicator->isHidden());
}

TEST_F(action, MessagesAreShownUnderTheWordForAttention) {
    window->show_message("a text");
    window->show_hot_swap_message();
    EXPECT_THAT(take_panels(), ElementsAre("panel attention [attention] a text (ok)",
                                           "panel attention [attention] hot_swap (ok)"));
}

TEST_F(action, MessageKeepsItsCallerUntilItIsAnswered) {
    bool answered = false;
    panels.while_open([&] { answered = true; });
    on_other_thread([&] {
        window->show_message("a text");
        EXPECT_TRUE(answered);
    });
}

TEST_F(action, ChoosingNotConfiguredDisablesTheCreateButton) {
    set_pair(true, false);
    window->update_raid_information();
    take_outlets();
    window->raidconfigradiobutton->click_row(3);
    EXPECT_THAT(take_outlets(), ElementsAre("confirmbutton: disabled"));
    window->raidconfigradiobutton->click_row(2);
    EXPECT_THAT(take_outlets(), ElementsAre("confirmbutton: enabled"));
}

TEST_F(action, ChoosingARowWithOneDiskLeavesTheCreateButtonAsItWas) {
    set_pair(false, false);
    for (const int row : {1, 2, 0}) {
        window->raidconfigradiobutton->click_row(row);
    }
    EXPECT_THAT(take_outlets(), IsEmpty());
}

TEST_F(action, ChoosingARowWhileThePollerRunsLeavesTheCreateButtonAsItWas) {
    set_pair(true, true);
    window->raidconfigradiobutton->click_row(1);
    EXPECT_THAT(take_outlets(), IsEmpty());
}

TEST_F(action, ChoosingARowWithoutAChipDoesNothing) {
    for (const int row : {3, 1}) {
        window->raidconfigradiobutton->click_row(row);
    }
    EXPECT_THAT(take_outlets(), IsEmpty());
}

TEST_F(action, ChoosingARowForAControllerThatIsNotThereDoesNotEnable) {
    set_pair(true, false);
    {
        const lock_scope lock(j.records);
        j.current = usb_identity(0x77);
    }
    window->raidconfigradiobutton->click_row(1);
    EXPECT_THAT(take_outlets(), IsEmpty());
}

TEST_F(action, RefreshButtonReadsEverythingAgain) {
    attach(device, usb_bridge(1, 2, 0x100, u"ABC"), memory_disk(disk_a()), memory_disk(disk_b()));
    window->refresh_button->click();
    EXPECT_EQ(window->disk0modelfield->text(), QStringLiteral("DISK A"));
    EXPECT_EQ(window->disk1serialfield->text(), QStringLiteral("SN-B"));
    EXPECT_FALSE(window->workingindicator->animated());
    EXPECT_TRUE(window->idle());
}

} // namespace
