#include <gtest/gtest.h>

#include "tests/support/change_fixture.h"

namespace {

class WarmBoot : public change_test {
protected:
    static bool restart(krchip& chip) {
        return perform([&] { return chip.warm_boot(); });
    }

    static bool restart_by_tool() {
        return perform([] { return j.warm_boot(); });
    }
};

} // namespace

TEST_F(WarmBoot, StopsTheMonitorsThenRestartsTheChip) {
    EXPECT_TRUE(restart(take_blank_chip()));
    EXPECT_EQ(log.take(), (lines{"stopprogressbar()", "krWarmBoot(0x11) = 0"}));
}

TEST_F(WarmBoot, IsAnnouncedBeforeTheChipRestarts) {
    krchip& chip = take_blank_chip();
    library.on_nth("krWarmBoot", 1, [&chip] {
        EXPECT_TRUE(j.warm_boot_pending);
        EXPECT_EQ(chip.connection_open, 0);
    });
    view.on("stopprogressbar", [&chip] {
        EXPECT_FALSE(j.warm_boot_pending);
        EXPECT_EQ(chip.connection_open, 1);
    });
    EXPECT_TRUE(restart(chip));
    EXPECT_EQ(log.count("krWarmBoot"), 1U);
}

TEST_F(WarmBoot, FailsWithAnyStatusButZeroAndStaysAnnounced) {
    for (const std::int32_t status : {1, -1}) {
        world().reset();
        krchip& chip = take_blank_chip();
        library.answer_nth("krWarmBoot", 1, {status});
        EXPECT_FALSE(restart(chip));
        EXPECT_TRUE(j.warm_boot_pending);
        EXPECT_EQ(chip.connection_open, 0);
    }
}

TEST_F(WarmBoot, StopsRunningMonitorsFirst) {
    krchip& chip = take_array(2);
    start_both_monitors(chip);
    EXPECT_TRUE(restart(chip));
    EXPECT_EQ(log.take(), (lines{"sleep(10ms)", "sleep(10ms)", "stopprogressbar()", "sleep(10ms)",
                                 "sleep(10ms)", "krWarmBoot(0x11) = 0"}));
    EXPECT_FALSE(chip.polling || chip.raid1_timer_on);
}

TEST_F(WarmBoot, WaitsTenSecondsForAFlagThatNoLivingThreadWillClearThenGoesOn) {
    krchip& chip = take_blank_chip();
    chip.poller_alive = true;
    EXPECT_TRUE(restart(chip));
    EXPECT_EQ(log.count("sleep(10ms)"), 1000U);
    EXPECT_EQ(log.lines().back(), "krWarmBoot(0x11) = 0");
}

TEST_F(WarmBoot, OfTheToolRestartsTheFirstChipOfTheListThoughAnotherIsSelected) {
    krchip& second = take_two_chips();
    j.current = second.identity;
    second.polling = true;
    EXPECT_TRUE(restart_by_tool());
    EXPECT_EQ(log.take(), (lines{"stopprogressbar()", "krWarmBoot(0x11) = 0"}));
    EXPECT_EQ(j.chips.at(0).connection_open, 0);
    EXPECT_EQ(second.connection_open, 1);
    EXPECT_TRUE(second.polling) << "the selected chip's monitors are not stopped";
}

TEST_F(WarmBoot, OfTheToolReturnsTheChipsResult) {
    take_two_chips();
    library.answer_nth("krWarmBoot", 1, {1});
    EXPECT_FALSE(restart_by_tool());
}

TEST_F(WarmBoot, OfTheToolWithoutChipsFailsWithoutACall) {
    EXPECT_FALSE(restart_by_tool());
    EXPECT_EQ(log.take(), lines{});
    EXPECT_FALSE(j.warm_boot_pending);
}
