// How the window comes up, and how the process ends.
#include <QAbstractItemModel>
#include <QPushButton>
#include <QScreen>
#include <QTreeView>
#include <gmock/gmock.h>

#include "app/controller_box.h"
#include "app/display.h"
#include "app/krview.h"
#include "app/main_window.h"
#include "app/tab_view.h"
#include "model/wake_point.h"
#include "tests/ui/window_test.h"

namespace {

using testing::Contains;
using testing::ElementsAre;

bool late_enough(int major, int minor, int bug_fix) {
    scripted_version system;
    system.major = major;
    system.minor = minor;
    system.bug_fix = bug_fix;
    return is_10_6_or_later(system);
}

TEST(system_version, From10Point6OnIsLateEnough) {
    EXPECT_TRUE(late_enough(10, 6, 0));
    EXPECT_FALSE(late_enough(10, 5, 8));
    EXPECT_TRUE(late_enough(10, 10, 0));
    EXPECT_FALSE(late_enough(11, 0, 0));
    EXPECT_TRUE(late_enough(11, 6, 0));
    EXPECT_FALSE(late_enough(9, 9, 9));
    EXPECT_FALSE(late_enough(10, 6, -1));
}

TEST(system_version, IsAskedPartByPart) {
    scripted_version system;
    is_10_6_or_later(system);
    EXPECT_THAT(system.asked,
                ElementsAre(version_part::major, version_part::minor, version_part::bug_fix));
}

TEST(system_version, OfADesktopStandsForDecimalUnits) {
    desktop_version desktop;
    EXPECT_TRUE(is_10_6_or_later(desktop));
}

TEST(display, IsAtHandWhenAnythingNamesOne) {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    char name[] = "kestrelraid";
    char option[] = "-platform";
    char value[] = "offscreen";
    char* with_option[] = {name, option, value};
    for (const char* variable : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
        qunsetenv(variable);
    }
    EXPECT_FALSE(display_at_hand(1, with_option));
    EXPECT_FALSE(display_at_hand(2, with_option));
    EXPECT_TRUE(display_at_hand(3, with_option));
    for (const char* variable : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) {
        qputenv(variable, "");
        EXPECT_FALSE(display_at_hand(1, with_option)) << variable;
        qputenv(variable, ":0");
        EXPECT_TRUE(display_at_hand(1, with_option)) << variable;
        qunsetenv(variable);
    }
    qputenv("QT_QPA_PLATFORM", platform);
}

class start_up : public window_test {
protected:
    void SetUp() override {
        model_test::SetUp(); // NOLINT(bugprone-parent-virtual-call): not started up yet
        workers.run_for_real(real_threads);
        window = new_window(&panels);
        window->outlets.keep_log(&outlet_log);
    }
};

TEST_F(start_up, BlanksTheWindowBeforeItLabelsIt) {
    window->awakeFromNib();
    const lines written = take_outlets();
    EXPECT_EQ(written.front(), "tree: hidden");
    const auto last_blank = std::find(written.begin(), written.end(), "mainview: needs display");
    ASSERT_NE(last_blank, written.end());
    EXPECT_EQ(*(last_blank + 1), "confirmbutton: title \"create_raid\"");
}

TEST_F(start_up, GivesTheTabsTheirIdentifiers) {
    window->awakeFromNib();
    EXPECT_EQ(window->configuretab->identifier, 0);
    EXPECT_EQ(window->rebuildtab->identifier, 1);
    EXPECT_EQ(window->rebuildbutton, window->rebuildtab);
}

TEST_F(start_up, MakesABorderlessTranslucentWindowOfItsSize) {
    window->awakeFromNib();
    EXPECT_EQ(window->mainwindow, nullptr);
    window->applicationDidFinishLaunching();
    ASSERT_NE(window->mainwindow, nullptr);
    EXPECT_EQ(window->mainwindow->size(), QSize(800, 630));
    EXPECT_EQ(window->mainwindow->minimumSize(), window->mainwindow->maximumSize());
    EXPECT_TRUE(window->mainwindow->windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(window->mainwindow->testAttribute(Qt::WA_TranslucentBackground));
    EXPECT_TRUE(window->mainwindow->isVisible());
    EXPECT_EQ(window->mainview->geometry(), QRect(0, 0, 800, 630));
    const QRect screen = window->mainwindow->screen()->geometry();
    EXPECT_EQ(window->mainwindow->pos(),
              QPoint(screen.left() + 100, screen.bottom() + 1 - 100 - 630));
}

TEST_F(start_up, StartsTheNotificationThreadBeforeItLoadsTheDialogWords) {
    texts.set("ok", "O");
    texts.set("cancel", "C");
    texts.set("warning", "W");
    texts.set("error", "E");
    texts.set("attention", "A");
    EXPECT_EQ(threads.waiting(), 0U);
    window->applicationDidFinishLaunching();
    EXPECT_EQ(ctrller, window.get());
    EXPECT_EQ(threads.waiting(), 1U);
    EXPECT_EQ(window->s_ok + window->s_cancel + window->s_warning + window->s_error +
                  window->s_attention,
              "OCWEA");
    EXPECT_NE(window->gettree()->model(), nullptr);
}

TEST_F(start_up, NotificationThreadBeginsToListen) {
    window->awakeFromNib();
    window->applicationDidFinishLaunching();
    on_other_thread([this] { threads.run_next(); });
    EXPECT_THAT(log.lines(from_hotplug), Contains(testing::StartsWith("match(")));
}

TEST_F(start_up, WithoutANotificationThreadEndsWithThree) {
    threads.refuse();
    window->awakeFromNib();
    window->applicationDidFinishLaunching();
    EXPECT_THAT(log.lines(from_window | from_exit),
                ElementsAre("panel error [error] error (ok)", "leave(3)"));
}

class ending : public window_test {};

TEST_F(ending, FatalErrorShowsTheWordForErrorTwiceAndEndsWithThree) {
    texts.set("error", "Fehler");
    window->show_error_and_exit("error_open_device");
    EXPECT_THAT(log.lines(from_window | from_exit),
                ElementsAre("panel error [Fehler] Fehler (ok)", "leave(3)"));
}

TEST_F(ending, FatalErrorOfAnotherThreadIsShownByTheWindow) {
    on_other_thread([this] { window->show_error_and_exit("error_open_device"); });
    EXPECT_THAT(log.lines(from_window | from_exit),
                ElementsAre("panel error [error] error (ok)", "leave(3)"));
}

TEST_F(ending, ExitEndsWithZeroEvenWhileARebuildIsPolled) {
    wake_point reading;
    wake_point released;
    threads.reset();
    threads.run_for_real(real_threads);
    show_chip([](krchip& chip) {
        put_disk(chip.disks[0], 2'000'000, mode_raid1);
        put_disk(chip.disks[1], 2'000'000, mode_raid1);
        chip.raid_valid = 1;
        chip.polling = true;
    });
    library.on_nth("krGetRebuildStatus", 1, [&] {
        reading.wake();
        released.wait();
    });
    window->update_raid_information();
    reading.wait();
    window->closebutton->click();
    EXPECT_THAT(log.lines(from_exit), ElementsAre("leave(0)"));
    {
        const lock_scope lock(j.records);
        j.chips[0].polling = false;
    }
    released.wake();
    on_other_thread([this] { threads.await_ends(); });
}

TEST_F(ending, ClosingTheWindowEndsWithZero) {
    EXPECT_FALSE(window->mainwindow->close());
    EXPECT_THAT(log.lines(from_exit), ElementsAre("leave(0)"));
}

TEST_F(ending, BridgeThatCannotBeOpenedEndsWithThree) {
    attach(device, usb_bridge(1, 2, 0x100));
    library.with_bridges([](memory_enclosure& all) { all.bridge(0x11).open_status = -1; });
    window->refresh();
    EXPECT_THAT(log.lines(from_exit), Contains("leave(3)"));
    EXPECT_THAT(take_panels(), Contains("panel error [error] error (ok)"));
}

} // namespace
