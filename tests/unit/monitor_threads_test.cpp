// The monitors on real threads. No pause takes time, so that the threads meet as often as they
// can.
#include <atomic>
#include <barrier>
#include <cstddef>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

#include "model/krtool.h"
#include "model/monitors.h"
#include "model/rescan.h"
#include "model/system_services.h"
#include "model/wake_point.h"
#include "tests/support/fixture.h"

namespace {

class MonitorThreads : public model_test {
protected:
    detached_threads real;

    void SetUp() override {
        model_test::SetUp();
        threads.run_for_real(real);
        pause.hurry();
    }

    krchip& take_rebuild(const rebuild_reading& reading) {
        metadata_sector marked = metadata_of(2, 0, 1900, disk_b());
        marked.flags = 0x80;
        krchip& chip = take_chip(member_a(2, &marked), member_b(2));
        library.with_bridges(
            [&](memory_enclosure& all) { all.bridge(device).readings = {reading}; });
        return chip;
    }

    static void stop_monitors_of(krchip& chip) {
        const gate_scope work(j.gate);
        chip.stop_monitors();
    }

    static void start_timer_of(krchip& chip) {
        const gate_scope work(j.gate);
        chip.start_raid1_timer();
    }

    static void pull_disk_one(scripted_library& from) {
        from.with_bridges([](memory_enclosure& all) { all.bridge(device).disks[1].reset(); });
    }
};

constexpr rebuild_reading half_way = {0, 1900, 950};
constexpr rebuild_reading done = {0, 1900, 1900};
constexpr rebuild_reading failed = {1, 0, 0};

} // namespace

TEST_F(MonitorThreads, APollerFinishesItsRebuildAndEnds) {
    krchip& chip = take_rebuild(done);
    chip.start_polling();
    threads.await_ends();
    EXPECT_EQ(log.count("krGetRebuildStatus"), 7U);
    EXPECT_EQ(log.count("show_message(\"rebuild_finished\")"), 1U);
    EXPECT_FALSE(chip.poller_alive || chip.polling);
    EXPECT_EQ(library.sector(device, 0, 1999)[4], 0);
}

TEST_F(MonitorThreads, AStopEndsBothMonitors) {
    krchip& chip = take_rebuild(half_way);
    start_timer_of(chip);
    chip.start_polling();
    log.await("krGetRebuildStatus", 3);
    log.await("krGetRegister", 3);
    stop_monitors_of(chip);
    EXPECT_FALSE(chip.poller_alive || chip.raid1_timer_alive);
    threads.await_ends();
}

TEST_F(MonitorThreads, AStopAtOnceAfterAStartIsNotUndone) {
    krchip& chip = take_rebuild(half_way);
    log.keep_only(0);
    for (int i = 0; i < 300; ++i) {
        chip.start_polling();
        start_timer_of(chip);
        stop_monitors_of(chip);
        ASSERT_FALSE(chip.polling || chip.poller_alive || chip.raid1_timer_on ||
                     chip.raid1_timer_alive)
            << "round " << i;
    }
    threads.await_ends();
}

TEST_F(MonitorThreads, TwoStartsAtOnceMakeOnePoller) {
    krchip& chip = take_rebuild(half_way);
    log.keep_only(from_threads);
    constexpr std::size_t rounds = 200;
    std::barrier both(2);
    std::thread other([&] {
        for (std::size_t i = 0; i < rounds; ++i) {
            both.arrive_and_wait();
            chip.start_polling();
            both.arrive_and_wait();
        }
    });
    for (std::size_t i = 0; i < rounds; ++i) {
        both.arrive_and_wait();
        chip.start_polling();
        both.arrive_and_wait();
        stop_monitors_of(chip);
    }
    other.join();
    EXPECT_EQ(log.count("thread started"), rounds);
    threads.await_ends();
}

TEST_F(MonitorThreads, ThereIsNeverASecondPollerBesideTheFirst) {
    krchip& chip = take_rebuild(half_way);
    std::atomic<int> inside{0};
    view.on("updatepoll", [&inside] {
        EXPECT_EQ(inside.fetch_add(1), 0);
        std::this_thread::yield();
        --inside;
    });
    std::atomic<bool> over{false};
    const auto start = [&] {
        while (!over) {
            chip.start_polling();
        }
    };
    std::thread one(start);
    std::thread other(start);
    log.await("updatepoll", 500);
    over = true;
    one.join();
    other.join();
    EXPECT_EQ(log.count("thread started"), 1U);
    stop_monitors_of(chip);
    threads.await_ends();
}

// Those who saw a rebuild in a copy do not start what has been stopped since.
TEST_F(MonitorThreads, AStopIsNotUndoneByThoseWhoSawARebuildInACopy) {
    krchip& chip = take_rebuild(half_way);
    const chip_place place = j.current_place();
    log.keep_only(0);
    std::atomic<bool> over{false};
    std::thread starter([&] {
        while (!over) {
            start_wanted_poller(place);
        }
    });
    for (int i = 0; i < 200; ++i) {
        chip.start_polling();
        stop_monitors_of(chip);
        ASSERT_FALSE(chip.polling || chip.poller_alive) << "round " << i;
    }
    over = true;
    starter.join();
    threads.await_ends();
}

TEST_F(MonitorThreads, AStopEndsWhileThePollerIsHeldUpInTheWindow) {
    krchip& chip = take_rebuild(half_way);
    wake_point entered;
    wake_point released;
    view.on("updatepoll", [&] {
        entered.wake();
        released.wait();
    });
    view.on("stopprogressbar", [&released] { released.wake(); });
    chip.start_polling();
    entered.wait();
    stop_monitors_of(chip);
    EXPECT_FALSE(chip.poller_alive);
    threads.await_ends();
}

TEST_F(MonitorThreads, AStopThatHoldsTheGateEndsAPollerThatWantsIt) {
    krchip& chip = take_rebuild(done);
    {
        const gate_scope operation(j.gate);
        chip.start_polling();
        log.await("updatepoll(1900, 1900, false)", 7);
        chip.stop_monitors();
    }
    threads.await_ends();
    EXPECT_EQ(log.count("updatepoll(1900, 1900, true)"), 0U);
    EXPECT_EQ(library.sector(device, 0, 1999)[4], 0x80) << "the clean-up was given up";
    EXPECT_EQ(chip.rebuild_pending, 1);
}

TEST_F(MonitorThreads, AFailedStatusIsWaitedForTenSecondsMoreAndThenLetGo) {
    krchip& chip = take_rebuild(failed);
    chip.start_polling();
    threads.await_ends();
    EXPECT_TRUE(chip.poller_alive);
    stop_monitors_of(chip);
    EXPECT_TRUE(chip.poller_alive) << "given up, not lowered";
}

TEST_F(MonitorThreads, ASwapIsReportedAndItsRefreshMakesANewTimer) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    let_the_window_select();
    view.on("refresh", [] { DeviceAdded(nullptr, 0); });
    start_timer_of(chip);
    log.await("krGetRegister", 4);
    pull_disk_one(library);
    log.await("stopworking()");
    EXPECT_EQ(log.count("show_hot_swap_message()"), 1U);
    EXPECT_EQ(log.count("thread started"), 2U);
    const gate_scope work(j.gate);
    ASSERT_EQ(j.chips.size(), 1U);
    EXPECT_EQ(j.chips[0].disks[1].present, 0);
    j.chips[0].stop_monitors();
    threads.await_ends();
}

TEST_F(MonitorThreads, ARescanWaitsForAnUnansweredSwapMessageAndGoesOn) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    let_the_window_select();
    view.on("refresh", [] { DeviceAdded(nullptr, 0); });
    wake_point asked;
    wake_point answered;
    view.on("show_hot_swap_message", [&] {
        asked.wake();
        answered.wait();
    });
    start_timer_of(chip);
    pull_disk_one(library);
    asked.wait();
    std::thread rescan([] { DeviceAdded(nullptr, 0); });
    log.await("startworking()");
    EXPECT_EQ(log.count("closeConnection"), 0U) << "the old records went under the timer";
    answered.wake();
    rescan.join();
    log.await("stopworking()", 2);
    {
        const gate_scope work(j.gate);
        j.selected()->stop_monitors();
    }
    threads.await_ends();
    EXPECT_EQ(log.count("getDeviceList"), 3U) << "the timer's, the rescan's and the refresh's";
}

TEST_F(MonitorThreads, APollerSurvivesTheRescanThatTakesItsRecordAway) {
    take_rebuild(half_way).start_polling();
    log.await("updatepoll");
    {
        const gate_scope work(j.gate);
        j.flush_chips();
    }
    threads.await_ends();
    EXPECT_TRUE(j.chips.empty());
    EXPECT_EQ(library.sector(device, 0, 1999)[4], 0x80);
}
