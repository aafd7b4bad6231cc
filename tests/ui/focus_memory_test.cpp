// What becomes of the focus when its control cannot have it.
#include <QTimer>
#include <QTreeView>

#include "tests/ui/focus_window.h"

namespace {

class focus_memory_test : public focus_window {
protected:
    void SetUp() override {
        focus_window::SetUp();
        enable_everything();
    }

    void focus_on(QWidget* control) {
        control->setFocus(Qt::TabFocusReason);
        ASSERT_TRUE(control->hasFocus());
    }
    void enable_create(bool enabled) {
        window->outlets.set_enabled(window->confirmbutton, enabled);
    }

    // A window whose panels the user answers.
    void open_with_users_panels() {
        window.reset();
        window = new_window(nullptr);
        window->awakeFromNib();
        window->applicationDidFinishLaunching();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window->mainwindow));
        enable_controls();
    }
    void show_message_and(const std::function<void()>& meanwhile) {
        QTimer user;
        user.setSingleShot(true);
        QObject::connect(&user, &QTimer::timeout, window->mainview, [&meanwhile] {
            meanwhile();
            press(Qt::Key_Return);
        });
        user.start(0);
        window->show_message("message");
    }
};

TEST_F(focus_memory_test, WaitsAtTheTabsWhileItsButtonIsOffAndGoesBack) {
    focus_on(window->confirmbutton);
    enable_create(false);
    EXPECT_EQ(focus(), "tabs");
    enable_create(true);
    EXPECT_EQ(focus(), "confirmbutton");
}

TEST_F(focus_memory_test, OutlastsTheBlankingOfTheWholeWindow) {
    for (QPushButton* button : {window->confirmbutton, window->clearconfigbutton,
                                window->cleardisk0button, window->cleardisk1button}) {
        focus_on(button);
        window->cleargui();
        EXPECT_EQ(focus(), "tabs");
        enable_everything();
        EXPECT_EQ(focus(), button->objectName().toStdString());
    }
}

TEST_F(focus_memory_test, OutlastsTheBlankingOfTheRebuildTab) {
    window->outlets.select(window->tabview, 1);
    focus_on(window->rebuild0to1button);
    window->cleargui();
    EXPECT_EQ(focus(), "tabs");
    window->enablegui(false);
    EXPECT_EQ(focus(), "tabs");
    window->outlets.select(window->tabview, 1);
    EXPECT_EQ(focus(), "rebuild0to1button");
}

TEST_F(focus_memory_test, OutlastsTheBlankingOfTheSecondPage) {
    window->switchguishowdisk();
    for (QWidget* control : {static_cast<QWidget*>(window->tree),
                             static_cast<QWidget*>(window->extras->warmbootbutton)}) {
        focus_on(control);
        window->cleargui();
        window->extras->warmbootbutton->setEnabled(false);
        EXPECT_EQ(focus(), "showdiskguibutton");
        window->extras->warmbootbutton->setEnabled(true);
        window->outlets.set_hidden(window->tree, false);
        EXPECT_EQ(focus(), control->objectName().toStdString());
    }
}

TEST_F(focus_memory_test, StaysNearbyWhenItsButtonStaysOff) {
    focus_on(window->confirmbutton);
    window->cleargui();
    window->update_raid_information();
    enable_create(false);
    EXPECT_EQ(focus(), "tabs");
}

TEST_F(focus_memory_test, IsNotTakenFromTheUserWhoHasGoneOn) {
    focus_on(window->confirmbutton);
    enable_create(false);
    press(Qt::Key_Tab);
    EXPECT_EQ(focus(), "raidconfigradiobutton_row0");
    enable_create(true);
    EXPECT_EQ(focus(), "raidconfigradiobutton_row0");
}

TEST_F(focus_memory_test, IsNotTakenFromTheUserWhoUsesTheTabs) {
    focus_on(window->confirmbutton);
    enable_create(false);
    press(Qt::Key_Right);
    press(Qt::Key_Left);
    enable_create(true);
    EXPECT_EQ(focus(), "tabs");
}

TEST_F(focus_memory_test, WaitsAtTheTabsWhileAnotherTabIsInFront) {
    focus_on(window->confirmbutton);
    QTest::keyClick(window->mainwindow, Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(window->tabview->selected(), 1);
    EXPECT_EQ(focus(), "tabs");
    QTest::keyClick(window->mainwindow, Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(focus(), "confirmbutton");
}

TEST_F(focus_memory_test, FollowsToAPageThatTheUserBringsToTheFront) {
    focus_on(window->confirmbutton);
    window->switchguishowdisk();
    EXPECT_EQ(focus(), "tree");
    window->outlets.set_hidden(window->tree, true);
    window->switchguimain();
    window->switchguishowdisk();
    EXPECT_NE(focus(), "nowhere");
    EXPECT_NE(focus(), "");
}

TEST_F(focus_memory_test, OutlastsABlankingWhileAnotherProgramHasTheKeyboard) {
    focus_on(window->confirmbutton);
    {
        QWidget other;
        other.show();
        other.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
        window->cleargui();
    }
    window->mainwindow->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window->mainwindow));
    EXPECT_EQ(focus(), "tabs");
    enable_create(true);
    EXPECT_EQ(focus(), "confirmbutton");
}

TEST_F(focus_memory_test, ReturnsFromAPanelToItsControl) {
    open_with_users_panels();
    focus_on(window->confirmbutton);
    show_message_and([] { EXPECT_EQ(focus(), "panel_default_button"); });
    EXPECT_EQ(focus(), "confirmbutton");
}

TEST_F(focus_memory_test, WaitsAfterAPanelWhoseControlIsOffMeanwhile) {
    open_with_users_panels();
    focus_on(window->confirmbutton);
    show_message_and([this] {
        window->cleargui();
        EXPECT_EQ(focus(), "panel_default_button");
    });
    EXPECT_EQ(focus(), "tabs");
    enable_create(true);
    EXPECT_EQ(focus(), "confirmbutton");
}

TEST_F(focus_memory_test, ReturnsAfterAPanelThatCameWhileItWaited) {
    open_with_users_panels();
    focus_on(window->confirmbutton);
    window->cleargui();
    show_message_and([this] { enable_create(true); });
    EXPECT_EQ(focus(), "confirmbutton");
}

} // namespace
