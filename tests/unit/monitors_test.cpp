#include "model/monitors.h"

#include <gtest/gtest.h>

#include "model/krtool.h"
#include "tests/support/monitor_fixture.h"

namespace {

class Monitors : public Monitor {};
class StopSequence : public Monitor {};

} // namespace

TEST_F(Monitors, AreThereAsSoonAsOneOfThemHasBeenStarted) {
    krchip& timed = take_chip(member_a(2), member_b(2));
    EXPECT_FALSE(timed.has_monitors());
    start_timer_of(timed);
    EXPECT_TRUE(timed.has_monitors());
    krchip& polled = take_rebuild();
    EXPECT_FALSE(polled.has_monitors());
    start_poller_of(polled);
    EXPECT_TRUE(polled.has_monitors());
}

TEST_F(Monitors, AreThereWhileAFlagWithoutAThreadIsUp) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    chip.raid1_timer_alive = true;
    EXPECT_TRUE(chip.has_monitors());
    chip.raid1_timer_alive = false;
    chip.poller_alive = true;
    EXPECT_TRUE(chip.has_monitors());
    chip.poller_alive = false;
    EXPECT_FALSE(chip.has_monitors());
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
