// The keys of the window's actions.
#include <QAbstractItemView>
#include <QShortcut>
#include <gmock/gmock.h>
#include <set>

#include "app/controller_box.h"
#include "app/gated_tab_bar.h"
#include "tests/ui/focus_window.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class window_keys : public focus_window {
protected:
    void SetUp() override {
        focus_window::SetUp();
        enable_everything();
        take_panels();
    }

    // As the user presses it, wherever the focus is. A button acts when its key has been seen.
    void press_key(const QKeySequence& keys) {
        const QKeyCombination key = keys[0];
        QTest::keyClick(window->mainwindow, key.key(), key.keyboardModifiers());
        for (QAbstractButton* button : window->mainview->findChildren<QAbstractButton*>()) {
            serve_until([button] { return !button->isDown(); });
        }
    }
    lines questions_after(const char* keys) {
        press_key(QKeySequence(QLatin1String(keys)));
        lines asked;
        for (const std::string& panel : take_panels()) {
            asked.push_back(panel.substr(panel.find(']') + 2));
        }
        return asked;
    }
};

TEST_F(window_keys, AskBeforeEveryChange) {
    panels.answer(panel_second);
    EXPECT_THAT(questions_after("Ctrl+N"), ElementsAre("all_data_lost (ok) (cancel)"));
    panels.answer(panel_second);
    EXPECT_THAT(questions_after("Ctrl+Del"), ElementsAre("all_data_lost (ok) (cancel)"));
    panels.answer(panel_second);
    EXPECT_THAT(questions_after("Shift+F7"), ElementsAre("all_data_lost (ok) (cancel)"));
    EXPECT_EQ(panels.last.plan->cards[0].bay, "disk_1");
    panels.answer(panel_second);
    EXPECT_THAT(questions_after("Shift+F8"), ElementsAre("all_data_lost (ok) (cancel)"));
    press_key(QKeySequence("Ctrl+2"));
    panels.answer(panel_second);
    EXPECT_THAT(questions_after("Ctrl+Right"), ElementsAre("disk1_to_disk2 (ok) (cancel)"));
    panels.answer(panel_second);
    EXPECT_THAT(questions_after("Ctrl+Left"), ElementsAre("disk2_to_disk1 (ok) (cancel)"));
}

TEST_F(window_keys, ActOnceHoweverLongTheyAreHeld) {
    constexpr bool pressed = true;
    constexpr bool repeated = true;
    QTest::simulateEvent(window->mainwindow, pressed, Qt::Key_N, Qt::ControlModifier, QString(),
                         repeated, -1);
    serve_until([this] { return !window->confirmbutton->isDown(); });
    EXPECT_THAT(take_panels(), IsEmpty());
}

TEST_F(window_keys, DoNothingForAButtonThatIsDisabledBeforeItActs) {
    window->confirmbutton->setEnabled(false);
    Q_EMIT window->confirmbutton->clicked(); // as a key does a moment after it was pressed
    EXPECT_THAT(take_panels(), IsEmpty());
}

TEST_F(window_keys, DoNothingForWhatIsOff) {
    window->disablegui(false);
    for (const char* keys : {"Ctrl+N", "Ctrl+Del", "Shift+F7", "Shift+F8"}) {
        EXPECT_THAT(questions_after(keys), IsEmpty()) << keys;
    }
}

TEST_F(window_keys, DoNothingForWhatIsNotInFront) {
    EXPECT_THAT(questions_after("Ctrl+Right"), IsEmpty());
    press_key(QKeySequence("Ctrl+2"));
    EXPECT_THAT(questions_after("Ctrl+N"), IsEmpty());
    press_key(QKeySequence("Alt+2"));
    EXPECT_EQ(window->guitab->currentIndex(), 1);
    EXPECT_THAT(questions_after("Ctrl+Right"), IsEmpty());
    press_key(QKeySequence("Ctrl+1"));
    EXPECT_EQ(window->tabview->selected(), 1);
    press_key(QKeySequence("Alt+1"));
    EXPECT_EQ(window->guitab->currentIndex(), 0);
}

TEST_F(window_keys, BringTheTabsToTheFrontThroughTheGate) {
    press_key(QKeySequence("Ctrl+2"));
    EXPECT_EQ(window->tabview->selected(), 1);
    press_key(QKeySequence("Ctrl+1"));
    EXPECT_EQ(window->tabview->selected(), 0);
    {
        const gate_scope work(j.gate);
        const lock_scope lock(j.records);
        j.chips.front().rebuild_possible = 0;
    }
    EXPECT_THAT(questions_after("Ctrl+2"), ElementsAre("two_raid1_disks_for_rebuild (ok)"));
    EXPECT_EQ(window->tabview->selected(), 0);
}

TEST_F(window_keys, OpenTheListOfEnclosuresAndChooseInIt) {
    window->controllerselectbox->add_entry("first", usb_identity(0x71));
    window->controllerselectbox->add_entry("second", usb_identity(0x72));
    press_key(QKeySequence("F4"));
    ASSERT_TRUE(window->controllerselectbox->view()->isVisible());
    EXPECT_EQ(window->mainwindow->focusWidget(), window->controllerselectbox);
    QTest::keyClick(window->controllerselectbox->view(), Qt::Key_End);
    QTest::keyClick(window->controllerselectbox->view(), Qt::Key_Return);
    EXPECT_EQ(window->controllerselectbox->currentText(), QStringLiteral("second"));
}

TEST_F(window_keys, ReachTheirActionsFromTheListOfEnclosures) {
    press_key(QKeySequence("Ctrl+2"));
    window->controllerselectbox->setFocus(Qt::TabFocusReason);
    panels.answer(panel_second);
    press(Qt::Key_Right, Qt::ControlModifier);
    serve_until([this] { return !window->rebuild0to1button->isDown(); });
    EXPECT_THAT(take_panels(), ElementsAre(HasSubstr("disk1_to_disk2")));
}

TEST_F(window_keys, EachHasOneMeaning) {
    std::set<std::string> seen;
    const auto take = [&seen](const QKeySequence& keys) {
        EXPECT_TRUE(seen.insert(keys.toString().toStdString()).second)
            << keys.toString().toStdString();
    };
    for (const QPushButton* button : window->mainview->findChildren<QPushButton*>()) {
        // The guide opens by its key from everywhere, so the key is not the link's.
        if (button != window->twotbcheckbox && button != window->extras->status.guide_link) {
            EXPECT_FALSE(button->shortcut().isEmpty()) << button->objectName().toStdString();
            take(button->shortcut());
        }
    }
    for (const QShortcut* shortcut : window->mainview->findChildren<QShortcut*>()) {
        take(shortcut->key());
    }
    EXPECT_EQ(seen.size(), 16U);
}

TEST_F(window_keys, StandInTheTips) {
    EXPECT_THAT(window->refresh_button->toolTip().toStdString(), HasSubstr("refresh_button (F5)"));
    EXPECT_THAT(window->cleardisk1button->toolTip().toStdString(),
                HasSubstr("ui_clear_disk_2 (Shift+F8)"));
    EXPECT_THAT(window->closebutton->toolTip().toStdString(), HasSubstr("ui_close (Ctrl+Q)"));
    EXPECT_EQ(window->tabview->bar()->tabToolTip(1), QStringLiteral("rebuild (Ctrl+2)"));
}

TEST_F(window_keys, OutlastANewNameOfTheRestartButton) {
    texts.set("ui_restart_named", "Restart %1");
    window->update_controller_list();
    EXPECT_THAT(window->extras->warmbootbutton->toolTip().toStdString(), HasSubstr("(Shift+F9)"));
    EXPECT_EQ(window->extras->warmbootbutton->shortcut(), QKeySequence("Shift+F9"));
}

} // namespace
