// Other threads' way into the window, and long work off the interface thread.
#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <atomic>
#include <gmock/gmock.h>
#include <numeric>
#include <thread>

#include "app/body_runner.h"
#include "app/controller_box.h"
#include "app/krview.h"
#include "app/main_window.h"
#include "app/radio_matrix.h"
#include "app/text_field.h"
#include "app/ui_bridge.h"
#include "tests/ui/test_main.h"
#include "tests/ui/window_test.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class bridge : public window_test {};

TEST_F(bridge, RunsAStepOfTheInterfaceThreadAtOnce) {
    bool ran = false;
    test_bridge().run([&ran] { ran = true; });
    EXPECT_TRUE(ran);
    EXPECT_TRUE(test_bridge().here());
}

TEST_F(bridge, RunsStepsOfOtherThreadsOnTheInterfaceThreadWhileTheyWait) {
    const std::thread::id interface = std::this_thread::get_id();
    on_other_thread([&] {
        std::thread::id ran_on;
        EXPECT_FALSE(test_bridge().here());
        test_bridge().run([&ran_on] { ran_on = std::this_thread::get_id(); });
        EXPECT_EQ(ran_on, interface);
    });
}

TEST_F(bridge, ServesEachThreadInItsOrder) {
    constexpr int steps = 200;
    std::vector<int> first;
    std::vector<int> second;
    std::atomic<int> running = 2;
    const auto run_steps = [&running](std::vector<int>& into) {
        for (int i = 0; i < steps; ++i) {
            test_bridge().run([&into, i] { into.push_back(i); });
        }
        test_bridge().run([&running] { --running; });
    };
    std::thread one([&] { run_steps(first); });
    std::thread two([&] { run_steps(second); });
    serve_until([&running] { return running == 0; });
    one.join();
    two.join();
    std::vector<int> expected(steps);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(first, expected);
    EXPECT_EQ(second, expected);
}

TEST_F(bridge, ServesAStepBehindAnOpenPanel) {
    window.reset();
    window = new_window(nullptr);
    window->awakeFromNib();
    window->applicationDidFinishLaunching();
    std::atomic<int> running = 2;
    wake_point panel_is_open;
    std::thread first([&] {
        window->show_message("first");
        test_bridge().run([&running] { --running; });
    });
    // The first thread's panel opens in its step; a timer of the panel's own loop tells so.
    QTimer opened;
    QObject::connect(&opened, &QTimer::timeout, &opened, [&] {
        if (window->mainview->findChild<QDialog*>("panel") != nullptr) {
            opened.stop();
            panel_is_open.wake();
        }
    });
    opened.start(0);
    std::thread second([&] {
        panel_is_open.wait();
        test_bridge().run([&] {
            auto* panel = window->mainview->findChild<QDialog*>("panel");
            EXPECT_NE(panel, nullptr);
            panel->accept();
        });
        test_bridge().run([&running] { --running; });
    });
    serve_until([&running] { return running == 0; });
    first.join();
    second.join();
    EXPECT_TRUE(window->idle());
}

class body : public window_test {
protected:
    // Runs the work as a body of the interface thread, of which `step` is served there.
    void work_with(const std::function<void()>& step) {
        attach(device, usb_bridge(1, 2, 0x100), memory_disk(disk_a()));
        pause.on_nth(1, [&step] { test_bridge().run(step); });
        window->refresh();
    }
    void click(QPushButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
};

TEST_F(body, LeavesTheInterfaceThreadAloneAndKeepsItsCallerWaiting) {
    bool served = false;
    std::thread::id pausing;
    pause.on_nth(1, [&] {
        pausing = std::this_thread::get_id();
        test_bridge().run([&served] { served = true; });
    });
    window->refresh();
    EXPECT_TRUE(served);
    EXPECT_NE(pausing, std::this_thread::get_id());
}

TEST_F(body, RunsOnAnotherThreadThatAsksForIt) {
    std::thread::id asking;
    std::thread::id pausing;
    pause.on_nth(1, [&] { pausing = std::this_thread::get_id(); });
    on_other_thread([&] {
        asking = std::this_thread::get_id();
        window->refresh();
    });
    EXPECT_EQ(pausing, asking);
    EXPECT_THAT(worker_log.lines(), IsEmpty());
}

TEST_F(body, TimersAndPaintingGoOnMeanwhile) {
    bool fired = false;
    wake_point seen;
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        fired = true;
        seen.wake();
    });
    timer.start(0);
    pause.on_nth(1, [&seen] { seen.wait(); });
    window->refresh();
    EXPECT_TRUE(fired);
}

TEST_F(body, ActionsPressedMeanwhileAreNotCarriedOut) {
    work_with([this] {
        EXPECT_FALSE(window->idle());
        window->showdiskguibutton->click(); // as an assistive program does it
        window->raidconfigradiobutton->click_row(3);
        Q_EMIT window->controllerselectbox->activated(0);
        window->refresh_button->click();
    });
    EXPECT_EQ(window->guitab->currentIndex(), 0);
    EXPECT_EQ(window->raidconfigradiobutton->selected_row(), 0) << "the row that counts is shown";
    EXPECT_EQ(worker_log.count("thread started"), 1U);
    EXPECT_TRUE(window->idle());
}

TEST_F(body, InputMeanwhileIsDroppedAndNotKept) {
    int clicked = 0;
    QObject::connect(window->showdiskguibutton, &QPushButton::clicked, qApp, [&] { ++clicked; });
    work_with([this] {
        click(window->showdiskguibutton);
        QTest::keyClick(window->showdiskguibutton, Qt::Key_Space);
    });
    QCoreApplication::processEvents();
    EXPECT_EQ(clicked, 0);
    click(window->showdiskguibutton);
    EXPECT_EQ(clicked, 1);
}

TEST_F(body, MinimiseIsObeyedMeanwhile) {
    work_with([this] {
        click(window->minimizebutton);
        EXPECT_TRUE(window->mainwindow->isMinimized());
    });
}

TEST_F(body, ExitPressedMeanwhileIsObeyedWhenTheBodyHasReturned) {
    work_with([this] {
        log.clear();
        click(window->closebutton);
        EXPECT_THAT(log.lines(from_exit), IsEmpty());
    });
    EXPECT_EQ(log.lines(from_exit), lines{"leave(0)"});
    const lines all = log.lines(from_exit | from_library);
    EXPECT_EQ(all.back(), "leave(0)");
    EXPECT_GT(all.size(), 1U);
}

TEST_F(body, ClosingTheWindowMeanwhileIsRememberedAsWell) {
    work_with([this] {
        window->mainwindow->close();
        EXPECT_THAT(log.lines(from_exit), IsEmpty());
    });
    EXPECT_EQ(log.lines(from_exit), lines{"leave(0)"});
}

TEST_F(body, PanelOpenedMeanwhileCanBeAnswered) {
    window.reset();
    window = new_window(nullptr);
    window->awakeFromNib();
    window->applicationDidFinishLaunching();
    show_chip([](krchip& chip) {
        put_disk(chip.disks[0], 2'000'000, mode_raid1);
        chip.disks[0].raid1_orphan = 1;
    });
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, &answer, [&] {
        if (auto* button = window->mainview->findChild<QPushButton*>("panel_default_button")) {
            answer.stop();
            click(button);
        }
    });
    answer.start(0);
    window->update_raid_information();
    EXPECT_FALSE(window->tree->isHidden());
}

TEST_F(body, ClosingTheWindowAnswersAnOpenPanelAndEndsAfterTheBody) {
    window.reset();
    window = new_window(nullptr);
    window->awakeFromNib();
    window->applicationDidFinishLaunching();
    show_chip([](krchip& chip) {
        put_disk(chip.disks[0], 2'000'000, mode_raid1);
        chip.disks[0].raid1_orphan = 1;
    });
    QTimer closing;
    QObject::connect(&closing, &QTimer::timeout, &closing, [&] {
        if (window->mainview->findChild<QDialog*>("panel") != nullptr) {
            closing.stop();
            window->mainwindow->close();
            EXPECT_THAT(log.lines(from_exit), IsEmpty());
        }
    });
    closing.start(0);
    window->update_raid_information();
    EXPECT_FALSE(window->tree->isHidden());
    EXPECT_EQ(log.lines(from_exit), lines{"leave(0)"});
}

TEST_F(body, WithoutAThreadToRunItEndsTheProgram) {
    workers.refuse();
    window->refresh();
    EXPECT_THAT(log.lines(from_window | from_exit),
                ElementsAre("panel error [error] error (ok)", "leave(3)"));
    EXPECT_TRUE(window->idle());
}

TEST_F(body, FatalErrorWithinItEndsTheProgramFromTheWindow) {
    attach(device, usb_bridge(1, 2, 0x100));
    library.with_bridges([](memory_enclosure& all) { all.bridge(0x11).open_status = -1; });
    window->refresh();
    EXPECT_EQ(log.lines(from_exit), lines{"leave(3)"});
}

} // namespace
