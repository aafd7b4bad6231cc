#include <gtest/gtest.h>
#include <string>

#include "tests/support/change_fixture.h"
#include "tests/support/expected_lines.h"

namespace {

const lines monitors_stopped = {"stopprogressbar()"};

lines records_erased(sector_form form0 = sector_form::lba48,
                     sector_form form1 = sector_form::lba48) {
    return joined({verified_write("zeros", 1999, 0, form0), verified_write("zeros", 1999, 1, form1),
                   restart({0, 1})});
}

lines wiped_and_erased(sector_form form) {
    return joined({monitors_stopped, wiped_start({0, 1}, form), records_erased(form, form)});
}

class ClearRaid : public change_test {
protected:
    static bool clear(krchip& chip) {
        return perform([&] { return chip.clear_raid(); });
    }

    // What LBAs 0 to 63 of both disks hold.
    void expect_start(const sector_bytes& contents) {
        for (std::uint64_t lba = 0; lba < 64; ++lba) {
            EXPECT_EQ(held(0, lba), hex_dump(contents)) << "LBA " << lba;
            EXPECT_EQ(held(1, lba), hex_dump(contents)) << "LBA " << lba;
        }
    }

    void expect_no_records() {
        EXPECT_EQ(held(0, usual_metadata), hex_dump({}));
        EXPECT_EQ(held(1, usual_metadata), hex_dump({}));
    }
};

} // namespace

TEST_F(ClearRaid, OfAMirrorCallsEverythingInOrder) {
    EXPECT_TRUE(clear(take_array(2)));
    EXPECT_EQ(log.take(), (lines{
                              "stopprogressbar()",
                              "krSetRaidInfo(0x11, zeros, 512, 1999, 0, 1) = 0",
                              "krGetRaidInfo(0x11, 512, 1999, 0, 1) = 0",
                              "krSetRaidInfo(0x11, zeros, 512, 1999, 1, 1) = 0",
                              "krGetRaidInfo(0x11, 512, 1999, 1, 1) = 0",
                              "krFlushHDDCache(0x11, 0) = 0",
                              "krFlushHDDCache(0x11, 1) = 0",
                              "stopprogressbar()",
                              "krWarmBoot(0x11) = 0",
                          }));
}

TEST_F(ClearRaid, OfAMirrorLeavesTheFirstSectorsOfBothDisksUntouched) {
    EXPECT_TRUE(clear(take_array(2)));
    expect_start(data_sector());
    expect_no_records();
}

TEST_F(ClearRaid, OfAnyOtherModeZeroesTheFirstSectorsOfBothDisksInTurn) {
    for (const int mode : {0, 1, 3, 4, 5, 255}) {
        SCOPED_TRACE("mode " + std::to_string(mode));
        world().reset();
        krchip& chip = take_array(mode);
        chip.raid_mode = mode;
        EXPECT_TRUE(clear(chip));
        EXPECT_EQ(log.count("krSetRaidInfo"), 130U);
        EXPECT_EQ(log.take(), wiped_and_erased(sector_form::lba48));
        expect_start({});
        expect_no_records();
        EXPECT_EQ(held(0, 64), hex_dump(data_sector()));
        EXPECT_EQ(held(1, 64), hex_dump(data_sector()));
    }
}

// The mode of the array counts, not those of the members.
TEST_F(ClearRaid, OfTwoDivergedMirrorHalvesThatWereNeverAnArrayWipesThem) {
    metadata_sector later = metadata_of(2, 1, 1900, disk_a());
    later.time = "20240301000000";
    krchip& chip = take_chip(with_data(member_a(2)), with_data(member_b(2, &later)));
    EXPECT_TRUE(clear(chip));
    expect_start({});
}

TEST_F(ClearRaid, OfAMirrorThatHasDivergedSinceItWasReadSparesItsData) {
    krchip& chip = take_array(2);
    chip.raid_valid = 0;
    EXPECT_TRUE(clear(chip));
    expect_start(data_sector());
}

TEST_F(ClearRaid, OnDisksWithoutFortyEightBitsClearsTheFlagOfEveryCall) {
    krchip& chip = take_chip(disk_with_28_bits(disk_a()), disk_with_chs(disk_b()));
    EXPECT_TRUE(clear(chip));
    EXPECT_EQ(log.take(), wiped_and_erased(sector_form::plain));
}

TEST_F(ClearRaid, BehindAFirewireBridgeUsesItsFormForFortyEightBitDisks) {
    EXPECT_TRUE(clear(take_blank_chip(2014, 2014, true)));
    EXPECT_EQ(log.take(), wiped_and_erased(sector_form::firewire));
}

TEST_F(ClearRaid, BehindAFirewireBridgeUsesTheFormOfEachDisk) {
    krchip& chip = take_chip(member_a(2), disk_with_28_bits(disk_b()), true);
    chip.raid_mode = 2;
    EXPECT_TRUE(clear(chip));
    EXPECT_EQ(log.take(), joined({monitors_stopped,
                                  records_erased(sector_form::firewire, sector_form::plain)}));
}

TEST_F(ClearRaid, SucceedsThoughEverySectorOfTheStartsFails) {
    krchip& chip = take_array(1);
    for (int lba = 0; lba < 64; ++lba) {
        library.answer_all("krSetRaidInfo(0x11, zeros, 512, " + std::to_string(lba) + ", ", {-1});
    }
    EXPECT_TRUE(clear(chip));
    EXPECT_EQ(log.count("krSetRaidInfo"), 130U);
    expect_no_records();
}

TEST_F(ClearRaid, WhoseFirstRecordCannotBeErasedErasesTheSecondAndDoesNotRestart) {
    krchip& chip = take_array(2);
    const std::string before = held(0, usual_metadata);
    library.answer_nth("krSetRaidInfo(0x11, zeros, 512, 1999, 0", 1, {1});
    EXPECT_FALSE(clear(chip));
    EXPECT_EQ(log.take(), joined({monitors_stopped,
                                  {"krSetRaidInfo(0x11, zeros, 512, 1999, 0, 1) = 1"},
                                  verified_write("zeros", 1999, 1)}));
    EXPECT_EQ(held(0, usual_metadata), before);
    EXPECT_EQ(held(1, usual_metadata), hex_dump({}));
    EXPECT_FALSE(j.warm_boot_pending);
    EXPECT_EQ(chip.connection_open, 1);
}

TEST_F(ClearRaid, WithOneDiskAbsentWipesTheOtherAndFails) {
    krchip& chip = take_chip(with_data(member_a(1)), std::nullopt);
    EXPECT_FALSE(clear(chip));
    EXPECT_EQ(log.count("krSetRaidInfo(0x11, zeros, 512, 18446744073709551601, 1, 1) = -1"), 1U);
    EXPECT_EQ(log.count("krWarmBoot"), 0U);
    EXPECT_EQ(held(0, usual_metadata), hex_dump({}));
    EXPECT_EQ(held(0, 63), hex_dump({}));
}

TEST_F(ClearRaid, StopsRunningMonitorsBeforeTheFirstWrite) {
    krchip& chip = take_array(2);
    start_both_monitors(chip);
    EXPECT_TRUE(clear(chip));
    EXPECT_EQ(log.take(), joined({{"sleep(10ms)", "sleep(10ms)", "stopprogressbar()", "sleep(10ms)",
                                   "sleep(10ms)"},
                                  records_erased()}));
    EXPECT_EQ(threads.waiting(), 0U);
}

TEST_F(ClearRaid, WaitsTenSecondsForAFlagThatNoLivingThreadWillClearThenGoesOn) {
    krchip& chip = take_array(2);
    chip.raid1_timer_alive = true;
    EXPECT_TRUE(clear(chip));
    const lines ten_seconds(1000, "sleep(10ms)");
    EXPECT_EQ(log.take(), joined({ten_seconds,
                                  monitors_stopped,
                                  verified_write("zeros", 1999, 0),
                                  verified_write("zeros", 1999, 1),
                                  {"krFlushHDDCache(0x11, 0) = 0", "krFlushHDDCache(0x11, 1) = 0"},
                                  ten_seconds,
                                  {"stopprogressbar()", "krWarmBoot(0x11) = 0"}}));
}

TEST_F(ClearRaid, ThroughTheToolChangesTheChipWithThatIndex) {
    take_two_chips();
    EXPECT_TRUE(perform([] { return j.clear_raid(1); }));
    EXPECT_EQ(log.count("krSetRaidInfo(0x12, zeros"), 130U);
    EXPECT_EQ(log.count("krSetRaidInfo(0x11, "), 0U);
    library.answer_all("krSetRaidInfo(0x11, zeros, 512, 1999", {1});
    EXPECT_FALSE(perform([] { return j.clear_raid(0); }));
    EXPECT_EQ(log.count("krSetRaidInfo(0x11, zeros"), 130U);
}

TEST_F(ClearRaid, ThroughTheToolOfAChipThatIsNotThereDoesNothing) {
    take_two_chips();
    for (const int index : {-1, 2, 2147483647}) {
        EXPECT_FALSE(perform([index] { return j.clear_raid(index); }));
    }
    EXPECT_EQ(log.take(), lines{});
}
