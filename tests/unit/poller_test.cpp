#include "model/monitors.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "model/krtool.h"
#include "tests/support/monitor_fixture.h"

namespace {

// One pass of the poller that shows `current` of 1900.
lines passed(const std::string& current) {
    return {"krGetRebuildStatus(0x11, 12) = 0", "updatepoll(1900, " + current + ", false)",
            "sleep(4000ms)"};
}

class Poller : public Monitor {};

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
    EXPECT_FALSE(chip.has_monitors()) << "somebody would wait for it";
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
