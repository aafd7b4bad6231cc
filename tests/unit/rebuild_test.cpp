#include <gtest/gtest.h>
#include <string>

#include "tests/support/change_fixture.h"
#include "tests/support/expected_lines.h"

namespace {

class Rebuild : public change_test {
protected:
    static bool rebuild(krchip& chip, bool direction) {
        return perform([&] { return chip.rebuild(direction); });
    }

    // A mirror whose records differ in everything that a rebuild takes from its source.
    krchip& take_mirror() {
        metadata_sector record0 = metadata_of(2, 0, 1900, disk_b());
        metadata_sector record1 = metadata_of(2, 1, 1800, disk_a());
        record1.large = 0x40;
        return take_chip(with_data(member_a(2, &record0)), with_data(member_b(2, &record1)));
    }

    void expect_records(const metadata_sector& record0, const metadata_sector& record1) {
        EXPECT_EQ(held(0, usual_metadata), hex_dump(record0.bytes()));
        EXPECT_EQ(held(1, usual_metadata), hex_dump(record1.bytes()));
    }
};

metadata_sector marked(metadata_sector record) {
    record.flags = 0x80;
    return record;
}

metadata_sector large(metadata_sector record) {
    record.large = 1;
    return record;
}

} // namespace

TEST_F(Rebuild, FromPortZeroCallsEverythingInOrder) {
    EXPECT_TRUE(rebuild(take_mirror(), false));
    EXPECT_EQ(log.take(), (lines{
                              "disablegui(true)",
                              "krSetRaidInfo(0x11, KR 2 0 80, 512, 1999, 0, 1) = 0",
                              "krGetRaidInfo(0x11, 512, 1999, 0, 1) = 0",
                              "krSetRaidInfo(0x11, KR 2 1 00, 512, 1999, 1, 1) = 0",
                              "krGetRaidInfo(0x11, 512, 1999, 1, 1) = 0",
                              "krFlushHDDCache(0x11, 0) = 0",
                              "krFlushHDDCache(0x11, 1) = 0",
                              "stopprogressbar()",
                              "krWarmBoot(0x11) = 0",
                          }));
}

TEST_F(Rebuild, FromPortOneWritesPortZeroFirstAllTheSame) {
    EXPECT_TRUE(rebuild(take_mirror(), true));
    EXPECT_EQ(log.take(), (lines{
                              "disablegui(true)",
                              "krSetRaidInfo(0x11, KR 2 0 00, 512, 1999, 0, 1) = 0",
                              "krGetRaidInfo(0x11, 512, 1999, 0, 1) = 0",
                              "krSetRaidInfo(0x11, KR 2 1 80, 512, 1999, 1, 1) = 0",
                              "krGetRaidInfo(0x11, 512, 1999, 1, 1) = 0",
                              "krFlushHDDCache(0x11, 0) = 0",
                              "krFlushHDDCache(0x11, 1) = 0",
                              "stopprogressbar()",
                              "krWarmBoot(0x11) = 0",
                          }));
}

TEST_F(Rebuild, InEitherDirectionMarksTheSourceAlone) {
    EXPECT_TRUE(rebuild(take_mirror(), false));
    EXPECT_EQ(library.sector(device, 0, usual_metadata)[4], 0x80);
    EXPECT_EQ(library.sector(device, 1, usual_metadata)[4], 0);
    world().reset();
    EXPECT_TRUE(rebuild(take_mirror(), true));
    EXPECT_EQ(library.sector(device, 0, usual_metadata)[4], 0);
    EXPECT_EQ(library.sector(device, 1, usual_metadata)[4], 0x80);
}

TEST_F(Rebuild, GivesBothRecordsTheCapacityAndTheLargeFlagOfTheSource) {
    EXPECT_TRUE(rebuild(take_mirror(), false));
    expect_records(marked(fresh_record(2, 0, 1900, disk_b())), fresh_record(2, 1, 1900, disk_a()));
    world().reset();
    EXPECT_TRUE(rebuild(take_mirror(), true));
    expect_records(large(fresh_record(2, 0, 1800, disk_b())),
                   large(marked(fresh_record(2, 1, 1800, disk_a()))));
}

TEST_F(Rebuild, DoesNotAskHowLargeTheTargetIs) {
    const metadata_sector record = metadata_of(2, 0, 9000, disk_b());
    krchip& chip =
        take_chip(memory_disk(identify_of("DISK A", "SN-A", 10014), record), memory_disk(disk_b()));
    EXPECT_TRUE(rebuild(chip, false));
    EXPECT_EQ(log.take(from_library),
              joined({verified_write("KR 2 0 80", 9999, 0),
                      verified_write("KR 2 1 00", 1999, 1),
                      {"krFlushHDDCache(0x11, 0) = 0", "krFlushHDDCache(0x11, 1) = 0",
                       "krWarmBoot(0x11) = 0"}}));
    EXPECT_EQ(held(1, 1999), hex_dump(fresh_record(2, 1, 9000, disk_a()).bytes()));
}

TEST_F(Rebuild, LeavesTheFirstSectorsOfBothDisksUntouched) {
    EXPECT_TRUE(rebuild(take_mirror(), false));
    for (std::uint64_t lba = 0; lba <= 64; ++lba) {
        EXPECT_EQ(held(0, lba), hex_dump(data_sector())) << "LBA " << lba;
        EXPECT_EQ(held(1, lba), hex_dump(data_sector())) << "LBA " << lba;
    }
}

TEST_F(Rebuild, FromADiskThatIsNoMirrorMemberFailsWithTheButtonsDisabledAndNothingWritten) {
    for (const int mode : {0, 1, 3, 4, 5, 255}) {
        SCOPED_TRACE("mode " + std::to_string(mode));
        world().reset();
        krchip& chip = take_chip(member_a(mode), member_b(2));
        EXPECT_FALSE(rebuild(chip, false));
        EXPECT_EQ(log.take(), lines{"disablegui(true)"});
        EXPECT_FALSE(j.warm_boot_pending);
        chip.disks[0].raid_mode = 2;
        chip.disks[1].raid_mode = mode;
        EXPECT_FALSE(rebuild(chip, true));
        EXPECT_EQ(log.take(), lines{"disablegui(true)"});
    }
}

TEST_F(Rebuild, ToADiskInNoArrayMakesItAMember) {
    krchip& chip = take_chip(member_a(2), memory_disk(disk_b()));
    EXPECT_TRUE(rebuild(chip, false));
    expect_records(marked(fresh_record(2, 0, 1900, disk_b())), fresh_record(2, 1, 1900, disk_a()));
}

TEST_F(Rebuild, ToAnAbsentDiskStillReportsSuccess) {
    krchip& chip = take_chip(member_a(2), std::nullopt);
    EXPECT_TRUE(rebuild(chip, false));
    EXPECT_EQ(log.take(from_library),
              joined({verified_write("KR 2 0 80", 1999, 0),
                      {"krSetRaidInfo(0x11, KR 2 1 00, 512, 18446744073709551601, 1, 1) = -1",
                       "krFlushHDDCache(0x11, 0) = 0", "krFlushHDDCache(0x11, 1) = 0",
                       "krWarmBoot(0x11) = 0"}}));
}

TEST_F(Rebuild, ReportsSuccessThoughNothingCouldBeWritten) {
    krchip& chip = take_mirror();
    library.answer_all("kr", {-1});
    EXPECT_TRUE(rebuild(chip, true));
    EXPECT_EQ(log.take(from_library),
              (lines{"krSetRaidInfo(0x11, KR 2 0 00, 512, 1999, 0, 1) = -1",
                     "krSetRaidInfo(0x11, KR 2 1 80, 512, 1999, 1, 1) = -1",
                     "krFlushHDDCache(0x11, 0) = -1", "krFlushHDDCache(0x11, 1) = -1",
                     "krWarmBoot(0x11) = -1"}));
    EXPECT_TRUE(j.warm_boot_pending);
}

TEST_F(Rebuild, OnDisksWithoutFortyEightBitsClearsTheFlagOfEveryCall) {
    krchip& chip = take_chip(disk_with_28_bits(disk_a()), disk_with_chs(disk_b()));
    chip.disks[0].raid_mode = 2;
    EXPECT_TRUE(rebuild(chip, false));
    EXPECT_EQ(log.take(), joined({{"disablegui(true)"},
                                  verified_write("KR 2 0 80", 1999, 0, sector_form::plain),
                                  verified_write("KR 2 1 00", 1999, 1, sector_form::plain),
                                  restart({0, 1})}));
}

TEST_F(Rebuild, BehindAFirewireBridgeUsesTheFormOfEachDisk) {
    krchip& chip = take_chip(disk_with_28_bits(disk_a()), member_b(2), true);
    EXPECT_TRUE(rebuild(chip, true));
    EXPECT_EQ(log.take(), joined({{"disablegui(true)"},
                                  verified_write("KR 2 0 00", 1999, 0, sector_form::plain),
                                  verified_write("KR 2 1 80", 1999, 1, sector_form::firewire),
                                  restart({0, 1})}));
}

// The records are written while they run: only the restart stops them.
TEST_F(Rebuild, StopsRunningMonitorsBeforeTheRestart) {
    krchip& chip = take_mirror();
    start_both_monitors(chip);
    EXPECT_TRUE(rebuild(chip, false));
    EXPECT_EQ(log.take(), joined({{"disablegui(true)"},
                                  verified_write("KR 2 0 80", 1999, 0),
                                  verified_write("KR 2 1 00", 1999, 1),
                                  {"krFlushHDDCache(0x11, 0) = 0", "krFlushHDDCache(0x11, 1) = 0",
                                   "sleep(10ms)", "sleep(10ms)", "stopprogressbar()", "sleep(10ms)",
                                   "sleep(10ms)", "krWarmBoot(0x11) = 0"}}));
}

TEST_F(Rebuild, WaitsTenSecondsForAFlagThatNoLivingThreadWillClearThenGoesOn) {
    krchip& chip = take_mirror();
    chip.poller_alive = true;
    EXPECT_TRUE(rebuild(chip, false));
    EXPECT_EQ(log.count("sleep(10ms)"), 1000U);
    EXPECT_EQ(log.lines().back(), "krWarmBoot(0x11) = 0");
}

TEST_F(Rebuild, StampsBothRecordsWithOneLookAtTheClock) {
    krchip& chip = take_mirror();
    library.on_nth("krSetRaidInfo", 1, [this] { clock.set(scripted_clock::start + 20); });
    EXPECT_TRUE(rebuild(chip, false));
    expect_records(marked(fresh_record(2, 0, 1900, disk_b())), fresh_record(2, 1, 1900, disk_a()));
}
