#include "model/monitors.h"

#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <string>

#include "model/krtool.h"
#include "tests/support/fixture.h"

namespace {

// One pass of the poller that shows `current` of 1900.
lines passed(const std::string& current) {
    return {"krGetRebuildStatus(0x11, 12) = 0", "updatepoll(1900, " + current + ", false)",
            "sleep(4000ms)"};
}

class Monitor : public model_test {
protected:
    // A mirror with a rebuild from port 0 to port 1.
    krchip& take_rebuild() {
        metadata_sector marked = metadata_of(2, 0, 1900, disk_b());
        marked.flags = 0x80;
        return take_chip(member_a(2, &marked), member_b(2));
    }

    void answer_status(std::initializer_list<rebuild_reading> readings) {
        library.with_bridges([&](memory_enclosure& all) {
            all.bridge(device).readings.assign(readings.begin(), readings.end());
        });
    }

    // Starts the poller; the log is empty afterwards and its body waits.
    void start_poller_of(krchip& chip) {
        chip.start_polling();
        log.clear();
    }

    void start_timer_of(krchip& chip) {
        const gate_scope work(j.gate);
        chip.start_raid1_timer();
        log.clear();
    }

    static void stop_monitors_of(krchip& chip) {
        const gate_scope work(j.gate);
        chip.stop_monitors();
    }
};

class Poller : public Monitor {};
class Timer : public Monitor {};
class StopSequence : public Monitor {};

} // namespace

TEST_F(Poller, IsStartedAfterTheWindowHasBeenPrepared) {
    krchip& chip = take_rebuild();
    chip.polling = false;
    EXPECT_TRUE(chip.start_polling());
    EXPECT_EQ(log.take(), (lines{"disablegui(true)", "startprogressbar()", "showrebuildbuttons()",
                                 "thread started"}));
    EXPECT_TRUE(chip.polling);
    EXPECT_EQ(threads.waiting(), 1U);
}

TEST_F(Poller, ThatIsAliveIsNotStartedAgainAndTheWindowIsNotTouched) {
    krchip& chip = take_rebuild();
    chip.poller_alive = true;
    EXPECT_TRUE(chip.start_polling());
    EXPECT_EQ(log.take(), lines{});
    EXPECT_EQ(threads.waiting(), 0U);
}

TEST_F(Poller, ThatIsAboutToRunIsNotStartedAgain) {
    krchip& chip = take_rebuild();
    start_poller_of(chip);
    EXPECT_FALSE(chip.poller_alive) << "its body has not run yet";
    chip.start_polling();
    EXPECT_EQ(log.take(), lines{});
}

TEST_F(Poller, ThatCannotBeCreatedEndsTheProcess) {
    krchip& chip = take_rebuild();
    chip.polling = false;
    threads.refuse();
    EXPECT_THROW(chip.start_polling(), process_ended);
    EXPECT_EQ(
        log.take(),
        (lines{"disablegui(true)", "startprogressbar()", "showrebuildbuttons()", "thread refused",
               "show_error_and_exit(\"Error creating polling thread..Exiting\")"}));
    EXPECT_FALSE(chip.polling);
}

TEST_F(Poller, ShowsEndAndCurrentAndSleepsFourSeconds) {
    krchip& chip = take_rebuild();
    answer_status({{0, 0x123456789ABC, 0x0000FEDCBA98}, {1, 0, 0}});
    start_poller_of(chip);
    threads.run_next();
    EXPECT_EQ(log.take(), (lines{"krGetRebuildStatus(0x11, 12) = 0",
                                 "updatepoll(20015998343868, 4275878552, false)", "sleep(4000ms)",
                                 "krGetRebuildStatus(0x11, 12) = 1"}));
}

TEST_F(Poller, IsAliveWhileItRuns) {
    krchip& chip = take_rebuild();
    answer_status({{0, 1900, 5}});
    start_poller_of(chip);
    pause.on_nth(1, [&chip] {
        EXPECT_TRUE(chip.poller_alive);
        chip.polling = false;
    });
    threads.run_next();
    EXPECT_FALSE(chip.poller_alive);
}

TEST_F(Poller, EndsWhenItIsNotWantedAnyLonger) {
    krchip& chip = take_rebuild();
    answer_status({{0, 1900, 5}});
    start_poller_of(chip);
    pause.on_nth(2, [&chip] { chip.stop_polling(); });
    threads.run_next();
    EXPECT_EQ(log.take(),
              (lines{"krGetRebuildStatus(0x11, 12) = 0", "updatepoll(1900, 5, false)",
                     "sleep(4000ms)", "krGetRebuildStatus(0x11, 12) = 0",
                     "updatepoll(1900, 5, false)", "sleep(4000ms)", "stopprogressbar()"}));
}

TEST_F(Poller, FinishesOnTheSeventhFinishedReadingInARow) {
    texts.set("rebuild_finished", "Done");
    krchip& chip = take_rebuild();
    EXPECT_EQ(chip.rebuild_pending, 1);
    answer_status({{0, 1900, 1899}, {0, 1900, 1900}});
    start_poller_of(chip);
    threads.run_next();
    lines expected = passed("1899");
    for (int i = 0; i < 6; ++i) {
        const lines pass = passed("1900");
        expected.insert(expected.end(), pass.begin(), pass.end());
    }
    const std::string port0 = "KR 2 0 00, 512, 1999, 0, 1) = 0";
    const std::string port1 = "KR 2 1 00, 512, 1999, 1, 1) = 0";
    const lines finish = {"krGetRebuildStatus(0x11, 12) = 0",
                          "updatepoll(1900, 1900, false)",
                          "krGetRaidInfoFW(0x11, 512, 1999, 0) = 0",
                          "krSetRaidInfo(0x11, " + port0,
                          "krGetRaidInfo(0x11, 512, 1999, 0, 1) = 0",
                          "krSetRaidInfo(0x11, " + port0,
                          "krGetRaidInfo(0x11, 512, 1999, 0, 1) = 0",
                          "krFlushHDDCache(0x11, 0) = 0",
                          "krGetRaidInfoFW(0x11, 512, 1999, 1) = 0",
                          "krSetRaidInfo(0x11, " + port1,
                          "krGetRaidInfo(0x11, 512, 1999, 1, 1) = 0",
                          "krSetRaidInfo(0x11, " + port1,
                          "krGetRaidInfo(0x11, 512, 1999, 1, 1) = 0",
                          "krFlushHDDCache(0x11, 1) = 0",
                          "updatepoll(1900, 1900, true)",
                          "show_message(\"Done\")",
                          "update_raid_information()",
                          "sleep(4000ms)"};
    expected.insert(expected.end(), finish.begin(), finish.end());
    EXPECT_EQ(log.take(), expected);
    EXPECT_FALSE(chip.polling);
    EXPECT_FALSE(chip.poller_alive);
    EXPECT_EQ(chip.rebuild_pending, 0);
    EXPECT_EQ(library.sector(device, 0, 1999)[4], 0);
}

TEST_F(Poller, HasClearedItsFlagsBeforeItWrites) {
    krchip& chip = take_rebuild();
    answer_status({{0, 1900, 1900}});
    start_poller_of(chip);
    library.on_nth("krGetRaidInfoFW", 1, [&chip] {
        EXPECT_FALSE(chip.polling);
        EXPECT_EQ(chip.rebuild_pending, 0);
        EXPECT_TRUE(chip.poller_alive);
    });
    view.on("show_message", [] { EXPECT_FALSE(j.gate.held_here()); });
    threads.run_next();
    EXPECT_EQ(log.count("updatepoll(1900, 1900, true)"), 1U);
}

TEST_F(Poller, AReadingBeyondTheEndCountsAsFinished) {
    krchip& chip = take_rebuild();
    answer_status({{0, 1900, 1901}});
    start_poller_of(chip);
    threads.run_next();
    EXPECT_EQ(log.count("krGetRebuildStatus"), 7U);
    EXPECT_EQ(log.count("updatepoll(1900, 1901, true)"), 1U);
}

TEST_F(Poller, AnIdleChipThatReportsNothingOfNothingCountsAsFinished) {
    krchip& chip = take_rebuild();
    answer_status({{0, 0, 0}});
    start_poller_of(chip);
    threads.run_next();
    EXPECT_EQ(log.count("updatepoll(0, 0, false)"), 7U);
    EXPECT_EQ(log.count("updatepoll(0, 0, true)"), 1U);
}

TEST_F(Poller, CountsFromZeroAgainAfterAReadingBelowTheEnd) {
    krchip& chip = take_rebuild();
    const rebuild_reading done = {0, 1900, 1900};
    answer_status({done, done, done, done, done, {0, 1900, 1899}, done});
    start_poller_of(chip);
    threads.run_next();
    EXPECT_EQ(log.count("krGetRebuildStatus"), 13U);
    EXPECT_EQ(log.count("updatepoll(1900, 1900, true)"), 1U);
}

TEST_F(Poller, CountsFromZeroAgainEvenAfterSixFinishedReadings) {
    krchip& chip = take_rebuild();
    const rebuild_reading done = {0, 1900, 1900};
    answer_status({done, done, done, done, done, done, {0, 1900, 0}, done});
    start_poller_of(chip);
    threads.run_next();
    EXPECT_EQ(log.count("krGetRebuildStatus"), 14U);
}

TEST_F(Poller, ThatGetsNoStatusEndsAtOnceAndStaysMarkedAlive) {
    krchip& chip = take_rebuild();
    for (const std::int32_t status : {1, -1}) {
        chip.poller_alive = false;
        answer_status({{status, 0, 0}});
        start_poller_of(chip);
        threads.run_next();
        EXPECT_EQ(log.take(), lines{"krGetRebuildStatus(0x11, 12) = " + std::to_string(status)});
        EXPECT_FALSE(chip.polling);
        EXPECT_TRUE(chip.poller_alive);
    }
}

TEST_F(Poller, AfterAFailedStatusIsNotStartedAgain) {
    krchip& chip = take_rebuild();
    answer_status({{1, 0, 0}});
    start_poller_of(chip);
    threads.run_next();
    log.clear();
    EXPECT_TRUE(chip.start_polling());
    EXPECT_EQ(log.take(), lines{});
}

TEST_F(Poller, AfterAFailedStatusAStopWaitsTenSecondsAndGoesOn) {
    krchip& chip = take_rebuild();
    answer_status({{1, 0, 0}});
    start_poller_of(chip);
    threads.run_next();
    log.clear();
    stop_monitors_of(chip);
    EXPECT_EQ(log.count("sleep(10ms)"), 1000U);
    EXPECT_EQ(log.lines().size(), 1001U);
    EXPECT_EQ(log.lines().front(), "stopprogressbar()");
}

TEST_F(Poller, ThatWasStoppedBeforeItRanEndsWithoutACall) {
    krchip& chip = take_rebuild();
    start_poller_of(chip);
    chip.stop_polling();
    log.clear();
    threads.run_next();
    EXPECT_EQ(log.take(), lines{});
    EXPECT_FALSE(chip.poller_alive);
}

TEST_F(Poller, OfAnUnknownChipEndsAtOnceAndSetsNoFlag) {
    krchip& chip = take_rebuild();
    const auto block = std::make_shared<monitor_block>(chip_place{j.current_place().generation, 7});
    poller(block);
    const auto none = std::make_shared<monitor_block>(chip_place{});
    poller(none);
    EXPECT_EQ(log.take(), lines{});
    EXPECT_FALSE(chip.poller_alive);
}

TEST_F(Poller, ThatOutlivesARescanTouchesNeitherBridgeNorRecord) {
    krchip& chip = take_rebuild();
    answer_status({{0, 1900, 1900}});
    start_poller_of(chip);
    pause.on_nth(6, [this] {
        const gate_scope work(j.gate);
        j.scandevices();
        j.updatediskinformation();
        j.read_raid();
        log.clear();
    });
    threads.run_next();
    EXPECT_EQ(log.take(), lines{});
    EXPECT_TRUE(j.chips.at(0).polling) << "set by the new reading";
    EXPECT_FALSE(j.chips.at(0).poller_alive);
    EXPECT_EQ(library.sector(device, 0, 1999)[4], 0x80) << "the mark must stay";
}

TEST_F(Poller, DoesNotShowAReadingThatARescanOvertook) {
    krchip& chip = take_rebuild();
    answer_status({{0, 1900, 5}});
    start_poller_of(chip);
    library.on_nth("krGetRebuildStatus", 1, [] {
        const lock_scope lock(j.records);
        j.chips.clear();
    });
    threads.run_next();
    EXPECT_EQ(log.count("updatepoll"), 0U);
}

TEST_F(Poller, StaysWithItsChipWhenAnotherIsSelectedBeforeItRuns) {
    krchip& chip = take_rebuild();
    answer_status({{1, 0, 0}});
    start_poller_of(chip);
    j.current = usb_identity(99);
    threads.run_next();
    EXPECT_EQ(log.take(), lines{"krGetRebuildStatus(0x11, 12) = 1"});
}

TEST_F(Poller, GivesItsCleanUpUpWhenSomebodyElseHasTheGateAndStopsIt) {
    krchip& chip = take_rebuild();
    answer_status({{0, 1900, 1900}});
    start_poller_of(chip);
    const gate_scope operation(j.gate); // held by this thread, which plays both roles
    pause.on_nth(9, [&chip] { chip.polling = false; });
    threads.run_next();
    const lines all = log.take();
    const lines tail(all.end() - 6, all.end());
    EXPECT_EQ(tail, (lines{"krGetRebuildStatus(0x11, 12) = 0", "updatepoll(1900, 1900, false)",
                           "sleep(10ms)", "sleep(10ms)", "sleep(10ms)", "sleep(4000ms)"}));
    EXPECT_EQ(chip.rebuild_pending, 1) << "the next reading of the chip finds the copy again";
    EXPECT_EQ(library.sector(device, 0, 1999)[4], 0x80);
    EXPECT_FALSE(chip.poller_alive);
}

TEST_F(Poller, StartedAgainFromItsOwnLastUpdateDoesNothing) {
    krchip& chip = take_rebuild();
    answer_status({{0, 1900, 1900}});
    start_poller_of(chip);
    view.on("update_raid_information", [&chip] { chip.start_polling(); });
    threads.run_next();
    EXPECT_EQ(threads.waiting(), 0U);
    EXPECT_EQ(log.count("disablegui"), 0U);
}

TEST_F(Poller, StoppedTellsTheWindowAndDoesNotWait) {
    krchip& chip = take_rebuild();
    start_poller_of(chip);
    chip.poller_alive = true;
    EXPECT_TRUE(chip.stop_polling());
    EXPECT_EQ(log.take(), lines{"stopprogressbar()"});
    EXPECT_FALSE(chip.polling);
}

TEST_F(Poller, StoppedWhileItStartsStaysStopped) {
    krchip& chip = take_rebuild();
    view.on("showrebuildbuttons", [&chip] { chip.stop_polling(); });
    chip.start_polling();
    EXPECT_FALSE(chip.polling);
    log.clear();
    threads.run_next();
    EXPECT_EQ(log.take(), lines{});
}

TEST_F(Poller, OfAChipThatIsInNoListIsNotStarted) {
    krchip stray;
    EXPECT_TRUE(stray.start_polling());
    EXPECT_EQ(log.take(), lines{});
}

TEST_F(Poller, SeenWantedInACopyIsStartedOnlyWhileItIsWanted) {
    krchip& chip = take_rebuild();
    const chip_place place = j.current_place();
    start_wanted_poller(place);
    EXPECT_EQ(log.count("thread started"), 1U);
    pause.on_nth(1, [this] { threads.run_next(); });
    stop_monitors_of(chip);
    log.clear();
    start_wanted_poller(place);
    EXPECT_EQ(log.take(), lines{});
}

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

TEST_F(Timer, ThatCannotBeCreatedEndsTheProcess) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    threads.refuse();
    view.on("show_error_and_exit", [&chip] { EXPECT_TRUE(chip.raid1_timer_on); });
    const gate_scope work(j.gate);
    EXPECT_THROW(chip.start_raid1_timer(), process_ended);
    EXPECT_EQ(log.take(),
              (lines{"thread refused",
                     "show_error_and_exit(\"Error creating RAID1 timer thread..Exiting\")"}));
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

TEST_F(StopSequence, OfIdleMonitorsHidesTheProgressAndSleepsNever) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    stop_monitors_of(chip);
    EXPECT_EQ(log.take(), lines{"stopprogressbar()"});
}

TEST_F(StopSequence, AwaitsTheTimerThenHidesTheProgressThenAwaitsThePoller) {
    krchip& chip = take_rebuild();
    answer_status({{0, 1900, 5}});
    start_timer_of(chip);
    start_poller_of(chip);
    pause.on_nth(2, [this] { threads.run_next(); }); // the timer
    pause.on_nth(4, [this] { threads.run_next(); }); // the poller
    stop_monitors_of(chip);
    EXPECT_EQ(log.take(), (lines{"sleep(10ms)", "sleep(10ms)", "stopprogressbar()", "sleep(10ms)",
                                 "sleep(10ms)"}));
    EXPECT_FALSE(chip.polling || chip.raid1_timer_on);
}

TEST_F(StopSequence, AwaitsALivingThreadForAsLongAsItLives) {
    krchip& chip = take_rebuild();
    start_poller_of(chip);
    pause.on_nth(5000, [this] { threads.run_next(); });
    stop_monitors_of(chip);
    EXPECT_EQ(log.count("sleep(10ms)"), 5000U);
}

TEST_F(StopSequence, GivesUpEachFlagWithoutAThreadAfterTenSeconds) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    chip.raid1_timer_alive = true;
    chip.poller_alive = true;
    stop_monitors_of(chip);
    EXPECT_EQ(log.count("sleep(10ms)"), 2000U);
    EXPECT_EQ(log.count("stopprogressbar()"), 1U);
}

TEST_F(StopSequence, EndsWhenAFlagWithoutAThreadIsLowered) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    chip.poller_alive = true;
    pause.on_nth(3, [&chip] { chip.poller_alive = false; });
    stop_monitors_of(chip);
    EXPECT_EQ(log.count("sleep(10ms)"), 3U);
}

TEST_F(StopSequence, HoldsNoLockWhileItSleeps) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    chip.poller_alive = true;
    stop_monitors_of(chip);
    EXPECT_EQ(log.count("sleep(10ms) locked"), 0U);
    EXPECT_EQ(log.count("sleep(10ms)"), 1000U);
}
