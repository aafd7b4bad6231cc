#include <gtest/gtest.h>
#include <string>

#include "tests/support/change_fixture.h"
#include "tests/support/expected_lines.h"

namespace {

const lines monitors_stopped = {"stopprogressbar()"};

lines erased(int port, sector_form form = sector_form::lba48) {
    return joined(
        {wiped_start({port}, form), verified_write("zeros", 1999, port, form), restart({port})});
}

class ClearDisk : public change_test {
protected:
    static bool clear(krchip& chip, bool port) {
        return perform([&] { return chip.clear_disk(port); });
    }

    void expect_erased(int port) {
        for (std::uint64_t lba = 0; lba < 64; ++lba) {
            EXPECT_EQ(held(port, lba), hex_dump({})) << "LBA " << lba;
        }
        EXPECT_EQ(held(port, 64), hex_dump(data_sector()));
        EXPECT_EQ(held(port, usual_metadata), hex_dump({}));
    }

    void expect_intact(int port, const metadata_sector& record) {
        for (std::uint64_t lba = 0; lba <= 64; ++lba) {
            EXPECT_EQ(held(port, lba), hex_dump(data_sector())) << "LBA " << lba;
        }
        EXPECT_EQ(held(port, usual_metadata), hex_dump(record.bytes()));
    }
};

} // namespace

TEST_F(ClearDisk, OnPortZeroCallsEverythingInOrderAndLeavesTheOtherDiskAlone) {
    EXPECT_TRUE(clear(take_array(1), false));
    EXPECT_EQ(log.take(), joined({monitors_stopped, erased(0)}));
    expect_erased(0);
    expect_intact(1, metadata_of(1, 1, 1900, disk_a()));
}

TEST_F(ClearDisk, OnPortOneCallsEverythingInOrderAndLeavesTheOtherDiskAlone) {
    EXPECT_TRUE(clear(take_array(1), true));
    EXPECT_EQ(log.take(), joined({monitors_stopped, erased(1)}));
    expect_erased(1);
    expect_intact(0, metadata_of(1, 0, 1900, disk_b()));
}

TEST_F(ClearDisk, EndsWithTheRecordOneFlushAndTheRestart) {
    EXPECT_TRUE(clear(take_blank_chip(), true));
    const lines all = log.take();
    ASSERT_EQ(all.size(), 134U);
    EXPECT_EQ(lines(all.begin(), all.begin() + 3),
              (lines{"stopprogressbar()", "krSetRaidInfo(0x11, zeros, 512, 0, 1, 1) = 0",
                     "krGetRaidInfo(0x11, 512, 0, 1, 1) = 0"}));
    EXPECT_EQ(lines(all.end() - 7, all.end()),
              (lines{"krSetRaidInfo(0x11, zeros, 512, 63, 1, 1) = 0",
                     "krGetRaidInfo(0x11, 512, 63, 1, 1) = 0",
                     "krSetRaidInfo(0x11, zeros, 512, 1999, 1, 1) = 0",
                     "krGetRaidInfo(0x11, 512, 1999, 1, 1) = 0", "krFlushHDDCache(0x11, 1) = 0",
                     "stopprogressbar()", "krWarmBoot(0x11) = 0"}));
}

TEST_F(ClearDisk, OfAMirrorWipesItsStartToo) {
    EXPECT_TRUE(clear(take_array(2), false));
    expect_erased(0);
}

TEST_F(ClearDisk, OfUnequalSizesErasesTheRecordOfThatDisk) {
    EXPECT_TRUE(clear(take_blank_chip(2014, 3000), true));
    EXPECT_EQ(log.count("krSetRaidInfo(0x11, zeros, 512, 2985, 1, 1) = 0"), 1U);
}

TEST_F(ClearDisk, WithoutFortyEightBitsClearsTheFlagOfEveryCall) {
    krchip& chip = take_chip(disk_with_28_bits(disk_a()), disk_with_chs(disk_b()));
    EXPECT_TRUE(clear(chip, false));
    EXPECT_EQ(log.take(), joined({monitors_stopped, erased(0, sector_form::plain)}));
    EXPECT_TRUE(clear(chip, true));
    EXPECT_EQ(log.take(), joined({monitors_stopped, erased(1, sector_form::plain)}));
}

TEST_F(ClearDisk, BehindAFirewireBridgeUsesTheFormOfThatDisk) {
    krchip& chip = take_chip(memory_disk(disk_a()), disk_with_28_bits(disk_b()), true);
    EXPECT_TRUE(clear(chip, false));
    EXPECT_EQ(log.take(), joined({monitors_stopped, erased(0, sector_form::firewire)}));
    EXPECT_TRUE(clear(chip, true));
    EXPECT_EQ(log.take(), joined({monitors_stopped, erased(1, sector_form::plain)}));
}

TEST_F(ClearDisk, SucceedsThoughEverySectorOfTheStartFails) {
    krchip& chip = take_blank_chip();
    for (int lba = 0; lba < 64; ++lba) {
        library.answer_all("krSetRaidInfo(0x11, zeros, 512, " + std::to_string(lba) + ", ", {1});
    }
    EXPECT_TRUE(clear(chip, false));
    EXPECT_EQ(log.count("krWarmBoot(0x11) = 0"), 1U);
}

TEST_F(ClearDisk, WhoseRecordCannotBeErasedFailsWithoutFlushOrRestart) {
    krchip& chip = take_blank_chip();
    library.answer_nth("krSetRaidInfo(0x11, zeros, 512, 1999", 1, {1});
    EXPECT_FALSE(clear(chip, false));
    EXPECT_EQ(log.take(), joined({monitors_stopped,
                                  wiped_start({0}),
                                  {"krSetRaidInfo(0x11, zeros, 512, 1999, 0, 1) = 1"}}));
    EXPECT_FALSE(j.warm_boot_pending);
    EXPECT_EQ(chip.connection_open, 1);
}

TEST_F(ClearDisk, ThatIsAbsentFails) {
    krchip& chip = take_chip(memory_disk(disk_a()), std::nullopt);
    EXPECT_FALSE(clear(chip, true));
    EXPECT_EQ(log.count("krSetRaidInfo"), 65U);
    EXPECT_EQ(log.count("krWarmBoot"), 0U);
}

TEST_F(ClearDisk, StopsRunningMonitorsBeforeTheFirstWrite) {
    krchip& chip = take_array(2);
    start_both_monitors(chip);
    EXPECT_TRUE(clear(chip, true));
    EXPECT_EQ(log.take(), joined({{"sleep(10ms)", "sleep(10ms)", "stopprogressbar()", "sleep(10ms)",
                                   "sleep(10ms)"},
                                  erased(1)}));
}

TEST_F(ClearDisk, WaitsTenSecondsForAFlagThatNoLivingThreadWillClearThenGoesOn) {
    krchip& chip = take_blank_chip();
    chip.poller_alive = true;
    EXPECT_TRUE(clear(chip, false));
    const lines ten_seconds(1000, "sleep(10ms)");
    EXPECT_EQ(log.take(), joined({monitors_stopped,
                                  ten_seconds,
                                  wiped_start({0}),
                                  verified_write("zeros", 1999, 0),
                                  {"krFlushHDDCache(0x11, 0) = 0", "stopprogressbar()"},
                                  ten_seconds,
                                  {"krWarmBoot(0x11) = 0"}}));
}
