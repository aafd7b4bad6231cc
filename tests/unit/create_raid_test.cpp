#include <gtest/gtest.h>
#include <string>

#include "tests/support/change_fixture.h"
#include "tests/support/expected_lines.h"

namespace {

const lines size_below_limit = {"log(\"Kestrel : RAID size < 2TB\")"};
const lines size_above_limit = {"log(\"Kestrel : RAID size > 2TB\")"};
const lines monitors_stopped = {"stopprogressbar()"};

lines large_bytes(int value) {
    return lines(2, "log(\"Kestrel : " + std::to_string(value) + "\")");
}

// Both sectors 0, then both records.
lines written(int mode, std::uint64_t lba0, std::uint64_t lba1, sector_form form0,
              sector_form form1) {
    const std::string record = "KR " + std::to_string(mode);
    return joined({verified_write("zeros", 0, 0, form0), verified_write("zeros", 0, 1, form1),
                   verified_write(record + " 0 00", lba0, 0, form0),
                   verified_write(record + " 1 00", lba1, 1, form1)});
}

lines created(int mode, std::uint64_t lba0, std::uint64_t lba1,
              sector_form form0 = sector_form::lba48, sector_form form1 = sector_form::lba48) {
    return joined({size_below_limit, monitors_stopped, large_bytes(0),
                   written(mode, lba0, lba1, form0, form1), restart({0, 1})});
}

class CreateRaid : public change_test {
protected:
    static bool create(krchip& chip, int mode) {
        return perform([&] { return chip.create_raid(mode, true); });
    }

    // The records of an array of disks A and B at the usual places.
    void expect_records(int mode, std::uint64_t capacity) {
        EXPECT_EQ(held(0, usual_metadata),
                  hex_dump(fresh_record(mode, 0, capacity, disk_b()).bytes()));
        EXPECT_EQ(held(1, usual_metadata),
                  hex_dump(fresh_record(mode, 1, capacity, disk_a()).bytes()));
    }

    // Creates an array of `mode` over blank disks of these sizes and expects it to be recorded as
    // one of `capacity` sectors, on the side of the limit that `large` tells.
    void expect_size(int mode, std::uint64_t size0, std::uint64_t size1, std::uint64_t capacity,
                     bool large) {
        SCOPED_TRACE("mode " + std::to_string(mode) + ", capacity " + std::to_string(capacity));
        world().reset();
        EXPECT_TRUE(create(take_blank_chip(size0, size1), mode));
        EXPECT_EQ(log.take(), joined({large ? size_above_limit : size_below_limit, monitors_stopped,
                                      large_bytes(large ? 1 : 0),
                                      written(mode, size0 - 15, size1 - 15, sector_form::lba48,
                                              sector_form::lba48),
                                      restart({0, 1})}));
        metadata_sector record0 = fresh_record(mode, 0, capacity, disk_b());
        metadata_sector record1 = fresh_record(mode, 1, capacity, disk_a());
        record0.large = large ? 1 : 0;
        record1.large = large ? 1 : 0;
        EXPECT_EQ(held(0, size0 - 15), hex_dump(record0.bytes()));
        EXPECT_EQ(held(1, size1 - 15), hex_dump(record1.bytes()));
    }
};

} // namespace

TEST_F(CreateRaid, OfAStripeCallsEverythingInOrder) {
    EXPECT_TRUE(create(take_blank_chip(), 1));
    EXPECT_EQ(log.take(), (lines{
                              "log(\"Kestrel : RAID size < 2TB\")",
                              "stopprogressbar()",
                              "log(\"Kestrel : 0\")",
                              "log(\"Kestrel : 0\")",
                              "krSetRaidInfo(0x11, zeros, 512, 0, 0, 1) = 0",
                              "krGetRaidInfo(0x11, 512, 0, 0, 1) = 0",
                              "krSetRaidInfo(0x11, zeros, 512, 0, 1, 1) = 0",
                              "krGetRaidInfo(0x11, 512, 0, 1, 1) = 0",
                              "krSetRaidInfo(0x11, KR 1 0 00, 512, 1999, 0, 1) = 0",
                              "krGetRaidInfo(0x11, 512, 1999, 0, 1) = 0",
                              "krSetRaidInfo(0x11, KR 1 1 00, 512, 1999, 1, 1) = 0",
                              "krGetRaidInfo(0x11, 512, 1999, 1, 1) = 0",
                              "krFlushHDDCache(0x11, 0) = 0",
                              "krFlushHDDCache(0x11, 1) = 0",
                              "stopprogressbar()",
                              "krWarmBoot(0x11) = 0",
                          }));
    expect_records(1, 3996);
}

TEST_F(CreateRaid, OfAMirrorCallsEverythingInOrder) {
    EXPECT_TRUE(create(take_blank_chip(), 2));
    EXPECT_EQ(log.take(), created(2, 1999, 1999));
    expect_records(2, 1998);
}

TEST_F(CreateRaid, OfASpanCallsEverythingInOrder) {
    EXPECT_TRUE(create(take_blank_chip(100000, 200000), 4));
    EXPECT_EQ(log.take(), created(4, 99985, 199985));
}

TEST_F(CreateRaid, OfUnequalDisksIsSizedOnTheSmallerOneForStripeAndMirrorAndOnBothForASpan) {
    expect_size(1, 2014, 3000, 3996, false);
    expect_size(1, 3000, 2014, 3996, false);
    expect_size(2, 2014, 3000, 1998, false);
    expect_size(2, 3000, 2014, 1998, false);
    expect_size(4, 100000, 200000, 234432, false);
    expect_size(4, 200000, 100000, 234432, false);
}

TEST_F(CreateRaid, OfExactlyTwoToTheThirtySecondSectorsIsLarge) {
    expect_size(1, 0x80000010, 0x90000000, 0x100000000, true);
    expect_size(2, 0x100000010, 0x100000010, 0x100000000, true);
    expect_size(4, 0x80000000, 0x80010020, 0x100000000, true);
}

TEST_F(CreateRaid, OfOneSectorLessIsNotLarge) {
    expect_size(2, 0x10000000F, 0x100000010, 0xFFFFFFFF, false);
    expect_size(4, 0x80000000, 0x8001001F, 0xFFFFFFFF, false);
    // Two, of a stripe: its size is even.
    expect_size(1, 0x8000000F, 0x90000000, 0xFFFFFFFE, false);
}

TEST_F(CreateRaid, ErasesThePartitionTablesAndNoOtherSectorButTheRecords) {
    EXPECT_TRUE(create(take_blank_chip(), 2));
    for (const int port : {0, 1}) {
        EXPECT_EQ(held(port, 0), hex_dump({}));
        for (std::uint64_t lba = 1; lba <= 64; ++lba) {
            EXPECT_EQ(held(port, lba), hex_dump(data_sector())) << "LBA " << lba;
        }
    }
}

TEST_F(CreateRaid, OnDisksWithoutFortyEightBitsClearsTheFlagOfEveryCall) {
    krchip& chip = take_chip(disk_with_28_bits(disk_a()), disk_with_chs(disk_b()));
    EXPECT_TRUE(create(chip, 2));
    EXPECT_EQ(log.take(), created(2, 1999, 1999, sector_form::plain, sector_form::plain));
    expect_records(2, 1998);
}

TEST_F(CreateRaid, OnMixedDisksUsesTheFormOfEach) {
    krchip& chip = take_chip(disk_with_28_bits(disk_a()), memory_disk(disk_b()));
    EXPECT_TRUE(create(chip, 1));
    EXPECT_EQ(log.take(), created(1, 1999, 1999, sector_form::plain, sector_form::lba48));
}

TEST_F(CreateRaid, BehindAFirewireBridgeUsesItsFormForFortyEightBitDisks) {
    EXPECT_TRUE(create(take_blank_chip(2014, 2014, true), 1));
    EXPECT_EQ(log.take(), created(1, 1999, 1999, sector_form::firewire, sector_form::firewire));
    expect_records(1, 3996);
}

TEST_F(CreateRaid, BehindAFirewireBridgeUsesThePlainFormForAllOtherDisks) {
    krchip& chip = take_chip(disk_with_chs(disk_a()), disk_with_28_bits(disk_b()), true);
    EXPECT_TRUE(create(chip, 1));
    EXPECT_EQ(log.take(), created(1, 1999, 1999, sector_form::plain, sector_form::plain));
}

TEST_F(CreateRaid, WithAModeThatIsNoArrayDeletesInsteadAndReturnsThatResult) {
    const lines deleted =
        joined({monitors_stopped, wiped_start({0, 1}), verified_write("zeros", 1999, 0),
                verified_write("zeros", 1999, 1), restart({0, 1})});
    for (const int mode : {0, 3, 5, -1, 255}) {
        SCOPED_TRACE("mode " + std::to_string(mode));
        world().reset();
        krchip& chip = take_array(1);
        EXPECT_TRUE(create(chip, mode));
        EXPECT_EQ(log.take(), deleted);
        library.answer_nth("krSetRaidInfo(0x11, zeros, 512, 1999, 1", 1, {1});
        EXPECT_FALSE(create(chip, mode));
    }
}

TEST_F(CreateRaid, WithAModeThatIsNoArraySparesTheDataOfAMirror) {
    EXPECT_TRUE(create(take_array(2), 0));
    EXPECT_EQ(log.take(), joined({monitors_stopped, verified_write("zeros", 1999, 0),
                                  verified_write("zeros", 1999, 1), restart({0, 1})}));
}

TEST_F(CreateRaid, WhoseSecondRecordFailsReturnsFalseThoughTheFirstIsWrittenAndDoesNotRestart) {
    krchip& chip = take_blank_chip();
    library.answer_nth("krSetRaidInfo(0x11, KR 2 1", 1, {1});
    EXPECT_FALSE(create(chip, 2));
    EXPECT_EQ(log.take(from_library),
              joined({verified_write("zeros", 0, 0),
                      verified_write("zeros", 0, 1),
                      verified_write("KR 2 0 00", 1999, 0),
                      {"krSetRaidInfo(0x11, KR 2 1 00, 512, 1999, 1, 1) = 1"}}));
    EXPECT_EQ(held(0, 1999), hex_dump(fresh_record(2, 0, 1998, disk_b()).bytes()));
    EXPECT_EQ(held(0, 0), hex_dump({}));
    EXPECT_EQ(held(1, 0), hex_dump({}));
    EXPECT_FALSE(j.warm_boot_pending);
    EXPECT_EQ(chip.connection_open, 1);
}

TEST_F(CreateRaid, WhoseFirstRecordFailsWritesTheSecondAllTheSame) {
    krchip& chip = take_blank_chip();
    library.answer_nth("krSetRaidInfo(0x11, KR 2 0", 1, {1});
    EXPECT_FALSE(create(chip, 2));
    EXPECT_EQ(held(0, 1999), hex_dump({}));
    EXPECT_EQ(held(1, 1999), hex_dump(fresh_record(2, 1, 1998, disk_a()).bytes()));
    EXPECT_EQ(log.count("krFlushHDDCache") + log.count("krWarmBoot"), 0U);
}

TEST_F(CreateRaid, SucceedsThoughThePartitionTablesCannotBeErased) {
    krchip& chip = take_blank_chip();
    library.answer_all("krSetRaidInfo(0x11, zeros, 512, 0", {-1});
    EXPECT_TRUE(create(chip, 1));
    EXPECT_EQ(log.count("krWarmBoot(0x11) = 0"), 1U);
    expect_records(1, 3996);
}

TEST_F(CreateRaid, SucceedsThoughTheRestartFails) {
    krchip& chip = take_blank_chip();
    library.answer_nth("krFlushHDDCache", 1, {1});
    library.answer_nth("krWarmBoot", 1, {1});
    EXPECT_TRUE(create(chip, 1));
}

TEST_F(CreateRaid, DoesNotLookAtItsSecondArgument) {
    krchip& chip = take_blank_chip();
    EXPECT_TRUE(perform([&] { return chip.create_raid(1, false); }));
    EXPECT_EQ(log.take(), created(1, 1999, 1999));
}

TEST_F(CreateRaid, StopsRunningMonitorsBetweenTheSizeAndTheFirstWrite) {
    krchip& chip = take_array(2);
    start_both_monitors(chip);
    EXPECT_TRUE(create(chip, 1));
    EXPECT_EQ(log.take(), joined({size_below_limit,
                                  {"sleep(10ms)", "sleep(10ms)", "stopprogressbar()", "sleep(10ms)",
                                   "sleep(10ms)"},
                                  large_bytes(0),
                                  written(1, 1999, 1999, sector_form::lba48, sector_form::lba48),
                                  restart({0, 1})}));
    EXPECT_EQ(threads.waiting(), 0U);
    EXPECT_FALSE(chip.polling || chip.raid1_timer_on || chip.raid1_timer_alive ||
                 chip.poller_alive);
}

// Each of the two stop sequences, of the change and of its restart, gives up for itself.
TEST_F(CreateRaid, WaitsTenSecondsForAFlagThatNoLivingThreadWillClearThenGoesOn) {
    krchip& chip = take_blank_chip();
    chip.poller_alive = true;
    EXPECT_TRUE(create(chip, 1));
    const lines ten_seconds(1000, "sleep(10ms)");
    EXPECT_EQ(log.take(), joined({size_below_limit,
                                  monitors_stopped,
                                  ten_seconds,
                                  large_bytes(0),
                                  written(1, 1999, 1999, sector_form::lba48, sector_form::lba48),
                                  {"krFlushHDDCache(0x11, 0) = 0", "krFlushHDDCache(0x11, 1) = 0",
                                   "stopprogressbar()"},
                                  ten_seconds,
                                  {"krWarmBoot(0x11) = 0"}}));
}

TEST_F(CreateRaid, StampsBothRecordsAlikeOnceTheMonitorsAreStopped) {
    krchip& chip = take_blank_chip();
    chip.poller_alive = true;
    pause.on_nth(1, [&] {
        clock.set(scripted_clock::start + 10);
        chip.poller_alive = false;
    });
    library.on_nth("krSetRaidInfo", 1, [this] { clock.set(scripted_clock::start + 20); });
    EXPECT_TRUE(create(chip, 1));
    for (const int port : {0, 1}) {
        const sector_bytes record = library.sector(device, port, usual_metadata);
        EXPECT_EQ(std::string(record.begin() + 480, record.begin() + 496),
                  stamp_at(scripted_clock::start + 10) + std::string(2, '\0'));
    }
}

TEST_F(CreateRaid, WritesNothingOnceTheProcessIsLeaving) {
    krchip& chip = take_blank_chip();
    j.with.exit.leave(0);
    EXPECT_FALSE(create(chip, 1));
    EXPECT_EQ(log.take(from_library), lines{});
}

TEST_F(CreateRaid, ThroughTheToolChangesTheChipWithThatIndex) {
    take_two_chips();
    EXPECT_TRUE(perform([] { return j.build_raid(1, 2, true); }));
    EXPECT_EQ(log.count("krSetRaidInfo(0x12, "), 4U);
    EXPECT_EQ(log.count("krWarmBoot(0x12) = 0"), 1U);
    EXPECT_EQ(log.count("krSetRaidInfo(0x11, ") + log.count("krWarmBoot(0x11"), 0U);
}

TEST_F(CreateRaid, ThroughTheToolReturnsTheChipsResult) {
    take_blank_chip();
    library.answer_all("krSetRaidInfo(0x11, KR", {1});
    EXPECT_FALSE(perform([] { return j.build_raid(0, 2, true); }));
    EXPECT_EQ(log.count("krSetRaidInfo(0x11, KR"), 2U);
}

TEST_F(CreateRaid, ThroughTheToolOfAChipThatIsNotThereDoesNothing) {
    take_two_chips();
    for (const int index : {-1, 2, 2147483647}) {
        EXPECT_FALSE(perform([index] { return j.build_raid(index, 1, true); }));
    }
    EXPECT_EQ(log.take(), lines{});
}
