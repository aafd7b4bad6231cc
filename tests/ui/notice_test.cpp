// Messages told on the desktop while the window is out of sight.
#include <QPushButton>
#include <QTest>
#include <gmock/gmock.h>

#include "app/controller_box.h"
#include "app/main_window.h"
#include "tests/ui/window_test.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class notice_of_a_message : public window_test {
protected:
    void SetUp() override {
        window_test::SetUp();
        window->controllerselectbox->set_text(QStringLiteral("Duo  (S/N: 1)"));
    }

    void minimise() { window->minimizewindow(); }

    void bring_another_window_to_the_front() {
        other.show();
        other.activateWindow();
        serve_until([this] { return other.isActiveWindow(); });
    }

    void bring_to_front() {
        window->bring_to_front({});
        serve_until([this] { return window->mainwindow->isActiveWindow(); });
    }

    // A mirror whose second disk is gone.
    void show_degraded_mirror() {
        show_chip([](krchip& chip) {
            put_disk(chip.disks[0], 2'000'000, mode_raid1);
            chip.disks[0].raid1_orphan = 1;
        });
        window->update_raid_information();
    }

    QWidget other;
};

TEST_F(notice_of_a_message, IsShownWhileTheWindowIsMinimised) {
    minimise();
    window->show_message("a\nb");
    EXPECT_THAT(desktop.log,
                ElementsAre("show 1 [attention] a\nb\nDuo  (S/N: 1) (ui_open_window)", "close 1"));
}

TEST_F(notice_of_a_message, IsShownWhileAnotherWindowIsInFront) {
    bring_another_window_to_the_front();
    window->show_hot_swap_message();
    EXPECT_THAT(
        desktop.log,
        ElementsAre("show 1 [attention] hot_swap\nDuo  (S/N: 1) (ui_open_window)", "close 1"));
}

TEST_F(notice_of_a_message, IsNotShownWhileTheWindowIsInFront) {
    bring_to_front();
    window->show_message("a");
    EXPECT_EQ(take_panels().size(), 1U);
    EXPECT_THAT(desktop.log, IsEmpty());
}

TEST_F(notice_of_a_message, IsNotShownOnceTheWindowIsInFrontAgain) {
    minimise();
    bring_to_front();
    window->show_message("a");
    EXPECT_THAT(desktop.log, IsEmpty());
}

TEST_F(notice_of_a_message, StaysUntilThePanelIsAnswered) {
    minimise();
    lines during;
    panels.while_open([&] { during = desktop.log; });
    window->show_message("a");
    EXPECT_EQ(during.size(), 1U);
    EXPECT_EQ(desktop.log.size(), 2U);
}

TEST_F(notice_of_a_message, HasNoLineForAnEnclosureWhereThereIsNone) {
    window->controllerselectbox->set_text(QString());
    minimise();
    window->show_message("a");
    EXPECT_THAT(desktop.log, ElementsAre("show 1 [attention] a (ui_open_window)", "close 1"));
}

TEST_F(notice_of_a_message, IsUrgentForAnAlertOfTheArray) {
    minimise();
    show_degraded_mirror();
    ASSERT_EQ(take_panels().size(), 1U);
    EXPECT_THAT(desktop.log,
                ElementsAre("show 1 urgent [attention] raid1_degrade_mode\nDuo  (S/N: 1) "
                            "(ui_open_window)",
                            "close 1"));
}

// The list may still name a bridge that the error is not about.
TEST_F(notice_of_a_message, IsUrgentForTheErrorThatEndsTheProgramAndNamesNoEnclosure) {
    minimise();
    window->show_error_and_exit("error_open_device");
    EXPECT_THAT(desktop.log, ElementsAre("show 1 urgent [error] error (ui_open_window)", "close 1",
                                         "hand over"));
}

TEST_F(notice_of_a_message, IsUrgentForAChangeThatFailed) {
    take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    minimise();
    library.answer_nth("krSetRaidInfo(0x11, ", 65, {1});
    window->cleardisk0();
    EXPECT_THAT(desktop.log,
                ElementsAre("show 1 urgent [error] raid_info_delete_error\nDuo  (S/N: 1) "
                            "(ui_open_window)",
                            "close 1"));
}

TEST_F(notice_of_a_message, IsNotMadeOfAQuestion) {
    minimise();
    panels.answer(panel_second);
    window->confirm();
    EXPECT_EQ(take_panels().size(), 1U);
    EXPECT_THAT(desktop.log, IsEmpty());
}

TEST_F(notice_of_a_message, BringsTheWindowToTheFrontAndAnswersNothingWhenItIsChosen) {
    minimise();
    bool in_front = false;
    panels.while_open([&] {
        desktop.choose("token");
        serve_until([this] { return window->mainwindow->isActiveWindow(); });
        in_front = window->mainwindow->in_front();
    });
    window->show_message("a");
    EXPECT_TRUE(in_front);
    EXPECT_EQ(take_panels().size(), 1U);
}

} // namespace
