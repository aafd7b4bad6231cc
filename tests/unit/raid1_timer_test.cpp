#include "model/monitors.h"

#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>

#include "model/krtool.h"
#include "tests/support/monitor_fixture.h"

namespace {

class Timer : public Monitor {};

} // namespace

TEST_F(Timer, IsSwitchedOnBeforeItsThreadExists) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    const gate_scope work(j.gate);
    EXPECT_TRUE(chip.start_raid1_timer());
    EXPECT_EQ(log.take(), lines{"thread started"});
    EXPECT_TRUE(chip.raid1_timer_on);
}

TEST_F(Timer, ThatIsAliveOrAboutToRunIsNotStartedAgain) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    start_timer_of(chip);
    start_timer_of(chip);
    EXPECT_EQ(threads.waiting(), 1U);
    world().reset();
    krchip& other = take_chip(member_a(2), member_b(2));
    other.raid1_timer_alive = true;
    start_timer_of(other);
    EXPECT_EQ(threads.waiting(), 0U);
    EXPECT_FALSE(other.raid1_timer_on);
}

TEST_F(Timer, OfAnEnclosureThatIsNotOfTheListIsNotStarted) {
    krchip copy = take_chip(member_a(2), member_b(2));
    start_timer_of(copy);
    EXPECT_EQ(threads.waiting(), 0U);
    EXPECT_FALSE(j.chips[0].raid1_timer_on);
}

TEST_F(Timer, ThatCannotBeCreatedEndsTheProcess) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    threads.refuse();
    view.on("show_error_and_exit", [&chip] { EXPECT_TRUE(chip.raid1_timer_on); });
    const gate_scope work(j.gate);
    EXPECT_THROW(chip.start_raid1_timer(), process_ended);
    EXPECT_EQ(log.take(),
              (lines{"thread refused",
                     "show_error_and_exit(\"Error creating RAID1 timer thread..Exiting\")"}));
    EXPECT_FALSE(chip.has_monitors()) << "somebody would wait for it";
}

TEST_F(Timer, ReadsBothPortsOnceASecondWithTheMutexHeldOnlyForTheReads) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    start_timer_of(chip);
    pause.on_nth(3, [&chip] { EXPECT_TRUE(chip.stop_raid1_timer()); });
    pause.on_nth(2, [&chip] { EXPECT_TRUE(chip.raid1_timer_alive); });
    threads.run_next();
    EXPECT_EQ(log.take(), (lines{"sleep(1000ms)", "krGetRegister(0x11, 512, 4, 0x7095) = 0",
                                 "krGetRegister(0x11, 512, 4, 0x709d) = 0", "sleep(1000ms)",
                                 "krGetRegister(0x11, 512, 4, 0x7095) = 0",
                                 "krGetRegister(0x11, 512, 4, 0x709d) = 0", "sleep(1000ms)",
                                 "krGetRegister(0x11, 512, 4, 0x7095) = 0",
                                 "krGetRegister(0x11, 512, 4, 0x709d) = 0"}));
    EXPECT_FALSE(chip.raid1_timer_alive);
}

TEST_F(Timer, SwitchedOffBeforeItRanEndsWithoutACall) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    start_timer_of(chip);
    chip.stop_raid1_timer();
    threads.run_next();
    EXPECT_EQ(log.take(), lines{});
    EXPECT_FALSE(chip.raid1_timer_alive);
}

TEST_F(Timer, WithBothDisksThereButNoMirrorMemberEndsAfterItsFirstReading) {
    krchip& chip = take_chip(member_a(1), member_b(1));
    start_timer_of(chip);
    threads.run_next();
    EXPECT_EQ(log.take(), (lines{"sleep(1000ms)", "krGetRegister(0x11, 512, 4, 0x7095) = 0",
                                 "krGetRegister(0x11, 512, 4, 0x709d) = 0"}));
    EXPECT_TRUE(chip.raid1_timer_on) << "it ends without switching itself off";
}

TEST_F(Timer, IgnoresTheModeOfAnAbsentDisk) {
    krchip& chip = take_chip(memory_disk(disk_a()), std::nullopt);
    chip.disks[1].raid_mode = 2;
    start_timer_of(chip);
    threads.run_next();
    EXPECT_EQ(log.count("krGetRegister"), 2U);
}

TEST_F(Timer, ReportsAPulledDiskThenAsksForARefresh) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    j.hot_swap_seen = true;
    start_timer_of(chip);
    pause.on_nth(1, [this] {
        library.with_bridges([](memory_enclosure& all) { all.bridge(device).disks[1].reset(); });
    });
    view.on("show_hot_swap_message", [&chip] {
        EXPECT_TRUE(j.hot_swap_seen);
        EXPECT_TRUE(chip.raid1_timer_alive);
    });
    view.on("refresh", [&chip] {
        EXPECT_FALSE(j.hot_swap_seen);
        EXPECT_FALSE(chip.raid1_timer_alive);
    });
    threads.run_next();
    EXPECT_EQ(log.take(),
              (lines{"sleep(1000ms)", "krGetRegister(0x11, 512, 4, 0x7095) = 0",
                     "krGetRegister(0x11, 512, 4, 0x709d) = 0", "sleep(2000ms)",
                     "getDeviceList(count 0) = 0", "show_hot_swap_message()", "refresh()"}));
    EXPECT_FALSE(chip.raid1_timer_alive);
}

TEST_F(Timer, ReportsAPushedDisk) {
    krchip& chip = take_chip(member_a(2), std::nullopt);
    start_timer_of(chip);
    pause.on_nth(1, [this] {
        library.with_bridges(
            [](memory_enclosure& all) { all.bridge(device).disks[1] = member_b(2); });
    });
    threads.run_next();
    EXPECT_EQ(log.count("show_hot_swap_message()"), 1U);
}

TEST_F(Timer, AsksForTheListWithTheMutexHeld) {
    krchip& chip = take_chip(member_a(2), std::nullopt);
    start_timer_of(chip);
    chip.disks[1].present = 1;
    bool locked = false;
    library.on_nth("getDeviceList", 1, [&locked] { locked = j.mutex.held_here(); });
    threads.run_next();
    EXPECT_TRUE(locked);
}

TEST_F(Timer, TakesAFailedRegisterForAnEmptyPort) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    start_timer_of(chip);
    library.answer_nth("krGetRegister(0x11, 512, 4, 0x709d)", 1, {-1, {1}, {}});
    threads.run_next();
    EXPECT_EQ(log.count("show_hot_swap_message()"), 1U);
}

TEST_F(Timer, TakesAPositiveStatusOfARegisterForSuccess) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    start_timer_of(chip);
    library.answer_nth("krGetRegister(0x11, 512, 4, 0x709d)", 1, {9, {0x80, 0, 0, 0}, {}});
    pause.on_nth(2, [&chip] { chip.stop_raid1_timer(); });
    threads.run_next();
    EXPECT_EQ(log.count("show_hot_swap_message()"), 0U);
}

TEST_F(Timer, LooksAtTheFirstByteOfARegisterAlone) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    start_timer_of(chip);
    library.answer_nth("krGetRegister(0x11, 512, 4, 0x7095)", 1, {0, {0, 1, 1, 1}, {}});
    threads.run_next();
    EXPECT_EQ(log.count("show_hot_swap_message()"), 1U);
}

TEST_F(Timer, LeavesABridgeThatHasGoneToTheHotPlugPath) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    start_timer_of(chip);
    j.hot_swap_seen = true;
    pause.on_nth(
        1, [this] { library.with_bridges([](memory_enclosure& all) { all.bridges.clear(); }); });
    threads.run_next();
    EXPECT_EQ(log.take(), (lines{"sleep(1000ms)", "krGetRegister(0x11, 512, 4, 0x7095) = -19",
                                 "krGetRegister(0x11, 512, 4, 0x709d) = -19", "sleep(2000ms)",
                                 "getDeviceList(count 0) = 0"}));
    EXPECT_TRUE(j.hot_swap_seen);
    EXPECT_FALSE(chip.raid1_timer_alive);
}

TEST_F(Timer, TakesANegativeCountForFewerThanAnyList) {
    krchip& chip = take_chip(member_a(2), std::nullopt);
    start_timer_of(chip);
    chip.disks[1].present = 1;
    library.with_bridges([](memory_enclosure& all) { all.list_count = -1; });
    threads.run_next();
    EXPECT_EQ(log.count("show_hot_swap_message()"), 0U);
}

TEST_F(Timer, IgnoresTheStatusOfTheListAndCountsItsEntries) {
    krchip& chip = take_chip(member_a(2), std::nullopt);
    start_timer_of(chip);
    chip.disks[1].present = 1;
    library.with_bridges([](memory_enclosure& all) { all.list_status = 7; });
    threads.run_next();
    EXPECT_EQ(log.count("show_hot_swap_message()"), 1U);
}

TEST_F(Timer, LetsTheRefreshOfItsOwnReportStartTheNextOne) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    start_timer_of(chip);
    pause.on_nth(1, [this] {
        library.with_bridges([](memory_enclosure& all) { all.bridge(device).disks[1].reset(); });
    });
    view.on("refresh", [] {
        const gate_scope work(j.gate);
        j.scandevices();
        j.updatediskinformation();
        j.read_raid();
        j.selected()->select_chip();
        j.selected()->raid1_timer_alive = true; // as its body would set it
    });
    threads.run_next();
    EXPECT_EQ(log.count("sleep(10ms)"), 0U) << "the flush waited for the thread that runs it";
    EXPECT_EQ(threads.waiting(), 1U);
    EXPECT_TRUE(j.chips.at(0).raid1_timer_alive) << "the old timer dropped its successor's flag";
    const gate_scope work(j.gate);
    j.selected()->raid1_timer_alive = false;
    pause.on_nth(1, [this] { threads.run_next(); });
    j.selected()->stop_monitors();
}

TEST_F(Timer, ThatOutlivesItsRecordsReportsNothing) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    start_timer_of(chip);
    pause.on_nth(1, [] {
        const gate_scope work(j.gate);
        j.selected()->raid1_timer_thread = nullptr;
        j.selected()->raid1_timer_alive = false;
        j.scandevices();
    });
    threads.run_next();
    EXPECT_EQ(log.count("krGetRegister"), 0U);
    EXPECT_EQ(log.count("show_hot_swap_message()"), 0U);
    EXPECT_FALSE(j.chips.at(0).raid1_timer_alive);
}

TEST_F(Timer, OfAnUnknownChipEndsAtOnceAndSetsNoFlag) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    const auto block = std::make_shared<monitor_block>(chip_place{});
    raid1_timer(block);
    EXPECT_EQ(log.take(), lines{});
    EXPECT_FALSE(chip.raid1_timer_alive);
}

TEST_F(Timer, WhoseThreadThrowsIsWaitedForNoLongerThanADeadOne) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    chip.start_raid1_timer();
    const monitor_handle block = chip.raid1_timer_thread;
    library.on_nth("krGetRegister", 1, [] { throw std::runtime_error("out of memory"); });
    EXPECT_THROW(threads.run_next(), std::runtime_error);
    EXPECT_FALSE(block->living());
    chip.stop_monitors();
}
