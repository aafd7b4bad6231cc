#include "model/krchip.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <string>

#include "tests/support/fixture.h"

namespace {

constexpr std::uint64_t metadata = 1999; // where the usual disks keep their metadata

raid_info info_of(const sector_bytes& bytes) {
    raid_info info;
    info.bytes = bytes;
    return info;
}

library_answer holding(const sector_bytes& bytes) {
    return {0, {bytes.begin(), bytes.end()}, {}};
}

// Does not announce 48-bit addressing.
identify_block with_28_bits() {
    identify_block block = disk_a();
    block.lba48 = false;
    return block;
}

memory_disk with_chs() {
    identify_block block = disk_a();
    block.lba48 = false;
    block.lba = false;
    block.cylinders = 19;
    block.heads = 53;
    block.sectors_per_track = 2;
    memory_disk disk(block);
    disk.size = 2014;
    return disk;
}

class SectorWrite : public model_test {
protected:
    const sector_bytes record = metadata_of(1, 0, 1900, disk_b()).bytes();

    bool write(krchip& chip, const sector_bytes& bytes, long long lba, bool port) {
        const gate_scope work(j.gate);
        return chip.execute_set_raid_info(info_of(bytes), lba, port);
    }
};

class Degrade : public model_test {
protected:
    bool degrade(krchip& chip, bool port) {
        const gate_scope work(j.gate);
        return chip.raid_degrade(port);
    }

    // What a mirror member of the usual size runs alone with.
    static metadata_sector lone_record(int port, std::uint64_t capacity, const std::string& time) {
        metadata_sector sector;
        sector.mode = 2;
        sector.member = static_cast<unsigned char>(port);
        sector.capacity = capacity;
        sector.time = time;
        return sector;
    }
};

class ClearRebuild : public model_test {
protected:
    metadata_sector marked = metadata_of(2, 0, 1900, disk_b());

    void SetUp() override {
        model_test::SetUp();
        marked.flags = 0x80;
        marked.extra = 0x030201;
    }

    sector_bytes unmarked() const {
        metadata_sector sector = marked;
        sector.flags = 0;
        sector.extra = 0;
        return sector.bytes();
    }

    void clear(krchip& chip, bool port) {
        const gate_scope work(j.gate);
        chip.clear_rebuild(port);
    }
};

class Selection : public model_test {
protected:
    void select(krchip& chip) {
        const gate_scope work(j.gate);
        chip.select_chip();
    }
};

} // namespace

TEST_F(SectorWrite, WritesThenReadsBackTheSameSector) {
    krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    EXPECT_TRUE(write(chip, record, 1999, true));
    EXPECT_EQ(log.take(), (lines{"krSetRaidInfo(0x11, KR 1 0 00, 512, 1999, 1, 1) = 0",
                                 "krGetRaidInfo(0x11, 512, 1999, 1, 1) = 0"}));
    EXPECT_EQ(hex_dump(library.sector(device, 1, 1999)), hex_dump(record));
}

TEST_F(SectorWrite, FollowsAScriptByteByByte) {
    krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    library.expect("krSetRaidInfo(0x11, KR 1 0 00, 512, 7, 0, 1)", {}, record);
    library.expect("krGetRaidInfo(0x11, 512, 7, 0, 1)", holding(record));
    EXPECT_TRUE(write(chip, record, 7, false));
}

TEST_F(SectorWrite, OfZerosIsVerifiedLikeAnyOther) {
    krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    EXPECT_TRUE(write(chip, sector_bytes{}, 0, false));
    sector_bytes almost{};
    almost[511] = 1;
    library.answer_nth("krGetRaidInfo(", 1, holding(almost));
    EXPECT_FALSE(write(chip, sector_bytes{}, 0, false));
}

TEST_F(SectorWrite, FailsWhenAnyByteReadsBackDifferent) {
    krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    for (std::size_t byte = 0; byte < record.size(); ++byte) {
        sector_bytes other = record;
        other[byte] ^= 0x10;
        library.answer_nth("krGetRaidInfo(", 1, holding(other));
        EXPECT_FALSE(write(chip, record, 1999, false)) << "byte " << byte;
    }
}

TEST_F(SectorWrite, ThatFailsIsNotReadBack) {
    krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    for (const std::int32_t status : {1, -1}) {
        library.answer_nth("krSetRaidInfo", 1, {status});
        EXPECT_FALSE(write(chip, record, 1999, false));
        EXPECT_EQ(log.count("krGetRaidInfo"), 0U);
    }
    EXPECT_EQ(library.sector(device, 0, 1999), sector_bytes{});
}

TEST_F(SectorWrite, FailsWhenTheReadBackFailsThoughItHoldsTheSameBytes) {
    krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    for (const std::int32_t status : {1, -1}) {
        library_answer answer = holding(record);
        answer.status = status;
        library.answer_nth("krGetRaidInfo(", 1, answer);
        EXPECT_FALSE(write(chip, record, 1999, false));
    }
}

TEST_F(SectorWrite, IsNotVerifiedByABufferThatNobodyFilled) {
    krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    library.answer_all("krGetRaidInfo(", {0});
    EXPECT_FALSE(write(chip, sector_bytes{}, 0, false));
    EXPECT_FALSE(write(chip, record, 0, false));
}

TEST_F(SectorWrite, OfAUsbBridgeTellsWhetherTheDiskHasFortyEightBits) {
    krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(with_28_bits()));
    write(chip, sector_bytes{}, 3, false);
    write(chip, sector_bytes{}, 3, true);
    EXPECT_EQ(log.take(), (lines{"krSetRaidInfo(0x11, zeros, 512, 3, 0, 1) = 0",
                                 "krGetRaidInfo(0x11, 512, 3, 0, 1) = 0",
                                 "krSetRaidInfo(0x11, zeros, 512, 3, 1, 0) = 0",
                                 "krGetRaidInfo(0x11, 512, 3, 1, 0) = 0"}));
}

TEST_F(SectorWrite, OfAFirewireBridgeUsesItsFormForAFortyEightBitDisk) {
    krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(disk_b()), true);
    EXPECT_TRUE(write(chip, sector_bytes{}, 3, true));
    EXPECT_EQ(log.take(), (lines{"krSetRaidInfoFW(0x11, zeros, 512, 3, 1) = 0",
                                 "krGetRaidInfoFW(0x11, 512, 3, 1) = 0"}));
}

TEST_F(SectorWrite, OfAFirewireBridgeUsesThePlainFormForAnyOtherDisk) {
    krchip& chip = take_chip(memory_disk(with_28_bits()), with_chs(), true);
    EXPECT_TRUE(write(chip, sector_bytes{}, 3, false));
    EXPECT_TRUE(write(chip, sector_bytes{}, 3, true));
    EXPECT_EQ(log.take(), (lines{"krSetRaidInfo(0x11, zeros, 512, 3, 0, 0) = 0",
                                 "krGetRaidInfo(0x11, 512, 3, 0, 0) = 0",
                                 "krSetRaidInfo(0x11, zeros, 512, 3, 1, 0) = 0",
                                 "krGetRaidInfo(0x11, 512, 3, 1, 0) = 0"}));
}

TEST_F(SectorWrite, LeavesTheCallersRecordUnchangedWhateverTheOutcome) {
    krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    const gate_scope work(j.gate);
    raid_info mine = info_of(record);
    EXPECT_TRUE(chip.execute_set_raid_info(mine, 1999, false));
    library.answer_nth("krGetRaidInfo(", 1, holding(sector_bytes{}));
    EXPECT_FALSE(chip.execute_set_raid_info(mine, 1999, false));
    EXPECT_EQ(mine.bytes, record);
}

TEST_F(SectorWrite, ChangesNothingInTheChipsRecord) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    const raid_info before = chip.disks[0].raid_info_raw;
    write(chip, sector_bytes{}, 1999, false);
    EXPECT_EQ(chip.disks[0].raid_info_raw.bytes, before.bytes);
    EXPECT_EQ(chip.disks[0].raid_mode, 2);
}

TEST_F(SectorWrite, GivesTheMutexBackWhateverTheOutcome) {
    krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    write(chip, record, 1999, false);
    EXPECT_FALSE(j.mutex.held_here());
    library.answer_nth("krSetRaidInfo", 1, {1});
    write(chip, record, 1999, false);
    EXPECT_FALSE(j.mutex.held_here());
    library.answer_nth("krGetRaidInfo", 1, {1});
    write(chip, record, 1999, false);
    EXPECT_FALSE(j.mutex.held_here());
}

TEST_F(SectorWrite, DoesNotBeginOnceTheProcessIsLeaving) {
    krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    j.with.exit.leave(0);
    EXPECT_FALSE(write(chip, record, 1999, false));
    EXPECT_EQ(log.take(), lines{"leave(0)"});
}

TEST_F(SectorWrite, AtAnAddressBeyondAnyDiskPassesItOnUnsignedAndFails) {
    krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    EXPECT_FALSE(write(chip, record, -15, false));
    EXPECT_EQ(log.take(),
              lines{"krSetRaidInfo(0x11, KR 1 0 00, 512, 18446744073709551601, 0, 1) = 5"});
}

TEST_F(Degrade, WritesARecordWithoutPartnerThenFlushes) {
    krchip& chip = take_chip(std::nullopt, member_b(2));
    EXPECT_TRUE(degrade(chip, true));
    EXPECT_EQ(log.take(),
              (lines{"krSetRaidInfo(0x11, KR 2 1 00, 512, 1999, 1, 1) = 0",
                     "krGetRaidInfo(0x11, 512, 1999, 1, 1) = 0", "krFlushHDDCache(0x11, 1) = 0"}));
    std::string time(16, '\0');
    std::copy_n(chip.disks[1].raid_time.begin(), 16, time.begin());
    EXPECT_EQ(hex_dump(library.sector(device, 1, metadata)),
              hex_dump(lone_record(1, 1900, time).bytes()));
}

TEST_F(Degrade, KeepsTheRecordedCapacityAndTheLargeFlag) {
    metadata_sector large = metadata_of(2, 0, 0x1234567890, disk_b());
    EXPECT_EQ(large.large, 1);
    krchip& chip = take_chip(memory_disk(disk_a(), large), std::nullopt);
    degrade(chip, false);
    const sector_bytes written = library.sector(device, 0, metadata);
    EXPECT_EQ(std::string(written.begin() + 8, written.begin() + 16),
              std::string("\x90\x78\x56\x34\x12\0\0\0", 8));
    EXPECT_EQ(written[496], 1);
    EXPECT_TRUE(std::all_of(written.begin() + 16, written.begin() + 76,
                            [](unsigned char byte) { return byte == 0; }));
}

TEST_F(Degrade, TakesAnyValueOfTheLargeByteAsSet) {
    metadata_sector odd = metadata_of(2, 0, 1900, disk_b());
    odd.large = 0x40;
    krchip& chip = take_chip(memory_disk(disk_a(), odd), std::nullopt);
    degrade(chip, false);
    EXPECT_EQ(library.sector(device, 0, metadata)[496], 1);
}

TEST_F(Degrade, StampsTheRecordAndTheCopyInMemoryAlike) {
    krchip& chip = take_chip(member_a(2), std::nullopt);
    clock.set(scripted_clock::start + 3600);
    std::array<unsigned char, 16> now{};
    GetTimeString(now.data(), scripted_clock::start + 3600);
    degrade(chip, false);
    const sector_bytes written = library.sector(device, 0, metadata);
    EXPECT_TRUE(std::equal(now.begin(), now.end(), written.begin() + 480));
    EXPECT_EQ(chip.disks[0].raid_time, now);
    EXPECT_EQ(chip.disks[0].raid_time[15], 0);
}

TEST_F(Degrade, FlushesAndStampsEvenWhenTheWriteFailed) {
    krchip& chip = take_chip(member_a(2), std::nullopt);
    library.answer_nth("krSetRaidInfo", 1, {1});
    std::array<unsigned char, 16> now{};
    GetTimeString(now.data(), scripted_clock::start);
    EXPECT_FALSE(degrade(chip, false));
    EXPECT_EQ(log.take(), (lines{"krSetRaidInfo(0x11, KR 2 0 00, 512, 1999, 0, 1) = 1",
                                 "krFlushHDDCache(0x11, 0) = 0"}));
    EXPECT_EQ(chip.disks[0].raid_time, now);
}

TEST_F(ClearRebuild, OfAnAbsentDiskDoesNothing) {
    krchip& chip = take_chip(memory_disk(disk_a(), marked), std::nullopt);
    clear(chip, true);
    EXPECT_EQ(log.take(), lines{});
}

TEST_F(ClearRebuild, ReadsThenWritesTwiceThenFlushes) {
    krchip& chip = take_chip(memory_disk(disk_a(), marked), member_b(2));
    clear(chip, false);
    EXPECT_EQ(log.take(),
              (lines{"krGetRaidInfoFW(0x11, 512, 1999, 0) = 0",
                     "krSetRaidInfo(0x11, KR 2 0 00, 512, 1999, 0, 1) = 0",
                     "krGetRaidInfo(0x11, 512, 1999, 0, 1) = 0",
                     "krSetRaidInfo(0x11, KR 2 0 00, 512, 1999, 0, 1) = 0",
                     "krGetRaidInfo(0x11, 512, 1999, 0, 1) = 0", "krFlushHDDCache(0x11, 0) = 0"}));
}

TEST_F(ClearRebuild, ZeroesFourBytesOnDiskAndInTheCachedSector) {
    krchip& chip = take_chip(memory_disk(disk_a(), marked), member_b(2));
    clear(chip, false);
    EXPECT_EQ(hex_dump(library.sector(device, 0, metadata)), hex_dump(unmarked()));
    EXPECT_EQ(hex_dump(chip.disks[0].raid_info_raw.bytes), hex_dump(unmarked()));
}

TEST_F(ClearRebuild, LeavesTheMarkInTheRecordSoThatSelectingAgainPollsAgain) {
    krchip& chip = take_chip(memory_disk(disk_a(), marked), member_b(2));
    clear(chip, false);
    EXPECT_EQ(chip.disks[0].rebuild_mark, 1);
    chip.polling = false;
    chip.rebuild_pending = 0;
    {
        const gate_scope work(j.gate);
        chip.select_chip();
    }
    EXPECT_TRUE(chip.polling);
    EXPECT_EQ(chip.rebuild_pending, 1);
}

TEST_F(ClearRebuild, ChoosesItsReadByBusOrAddressing) {
    krchip& plain = take_chip(memory_disk(with_28_bits()), std::nullopt);
    clear(plain, false);
    EXPECT_EQ(log.take().front(), "krGetRaidInfo(0x11, 512, 1999, 0, 0) = 0");
    world().reset();
    krchip& firewire = take_chip(memory_disk(with_28_bits()), with_chs(), true);
    clear(firewire, false);
    EXPECT_EQ(log.take().front(), "krGetRaidInfoFW(0x11, 512, 1999, 0) = 0");
    clear(firewire, true);
    EXPECT_EQ(log.take().front(), "krGetRaidInfoFW(0x11, 512, 1999, 1) = 0");
}

TEST_F(ClearRebuild, WritesTheCachedSectorFirstWhenTheReadFilledNothing) {
    krchip& chip = take_chip(memory_disk(disk_a(), marked), member_b(2));
    library.expect("krGetRaidInfoFW(0x11, 512, 1999, 0)", {1});
    for (int time = 0; time < 2; ++time) {
        library.expect("krSetRaidInfo(0x11, KR 2 0 00, 512, 1999, 0, 1)", {}, unmarked());
        library.expect("krGetRaidInfo(0x11, 512, 1999, 0, 1)", holding(unmarked()));
    }
    library.expect("krFlushHDDCache(0x11, 0)");
    clear(chip, false);
}

TEST_F(ClearRebuild, WritesWhatItReadFirstAndTheCachedSectorLast) {
    krchip& chip = take_chip(memory_disk(disk_a(), marked), member_b(2));
    sector_bytes other{};
    other.fill(0x55);
    sector_bytes other_cleared = other;
    std::fill(other_cleared.begin() + 4, other_cleared.begin() + 8, static_cast<unsigned char>(0));
    library.expect("krGetRaidInfoFW(0x11, 512, 1999, 0)", holding(other));
    library.expect("krSetRaidInfo(0x11, other, 512, 1999, 0, 1)", {1}, other_cleared);
    library.expect("krSetRaidInfo(0x11, KR 2 0 00, 512, 1999, 0, 1)", {1}, unmarked());
    library.expect("krFlushHDDCache(0x11, 0)");
    clear(chip, false);
}

TEST_F(Selection, OfALoneMirrorMemberDegradesItAndStartsTheTimer) {
    krchip& chip = take_chip(member_a(2), std::nullopt);
    select(chip);
    EXPECT_EQ(log.take(), (lines{"krSetRaidInfo(0x11, KR 2 0 00, 512, 1999, 0, 1) = 0",
                                 "krGetRaidInfo(0x11, 512, 1999, 0, 1) = 0",
                                 "krFlushHDDCache(0x11, 0) = 0", "thread started"}));
    EXPECT_TRUE(chip.raid1_timer_on);
}

TEST_F(Selection, OfALoneMirrorMemberOnPortOneDoesSoToo) {
    krchip& chip = take_chip(std::nullopt, member_b(2));
    select(chip);
    EXPECT_EQ(log.take(), (lines{"krSetRaidInfo(0x11, KR 2 1 00, 512, 1999, 1, 1) = 0",
                                 "krGetRaidInfo(0x11, 512, 1999, 1, 1) = 0",
                                 "krFlushHDDCache(0x11, 1) = 0", "thread started"}));
    EXPECT_TRUE(chip.raid1_timer_on);
}

TEST_F(Selection, DegradesAgainEachTimeWithANewStamp) {
    krchip& chip = take_chip(member_a(2), std::nullopt);
    select(chip);
    const auto first = chip.disks[0].raid_time;
    clock.set(scripted_clock::start + 1);
    select(chip);
    EXPECT_NE(chip.disks[0].raid_time, first);
    EXPECT_EQ(log.count("krSetRaidInfo"), 2U);
}

TEST_F(Selection, DegradesPortZeroBeforePortOne) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    chip.disks[0].raid1_orphan = 1;
    chip.disks[1].raid1_orphan = 1;
    select(chip);
    EXPECT_EQ(log.take(from_library),
              (lines{"krSetRaidInfo(0x11, KR 2 0 00, 512, 1999, 0, 1) = 0",
                     "krGetRaidInfo(0x11, 512, 1999, 0, 1) = 0", "krFlushHDDCache(0x11, 0) = 0",
                     "krSetRaidInfo(0x11, KR 2 1 00, 512, 1999, 1, 1) = 0",
                     "krGetRaidInfo(0x11, 512, 1999, 1, 1) = 0", "krFlushHDDCache(0x11, 1) = 0"}));
}

// A partner whose record cannot be read counts as one in no array.
TEST_F(Selection, DegradesAMirrorWhosePartnerCouldNotBeRead) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    library.answer_nth("krGetRaidInfo(0x11, 512, 1999, 1", 1, {1});
    const gate_scope work(j.gate);
    chip.read_raid_info();
    chip.select_chip();
    EXPECT_EQ(log.count("krSetRaidInfo(0x11, KR 2 0"), 1U);
    EXPECT_EQ(log.count("krSetRaidInfo(0x11, KR 2 1"), 0U);
}

TEST_F(Selection, OfAMirrorInOrderOnlyStartsTheTimer) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    select(chip);
    EXPECT_EQ(log.take(), lines{"thread started"});
    EXPECT_FALSE(chip.polling);
}

TEST_F(Selection, OfAStripeDoesNothing) {
    krchip& chip = take_chip(member_a(1), member_b(1));
    select(chip);
    EXPECT_EQ(log.take(), lines{});
    EXPECT_FALSE(chip.raid1_timer_on);
}

TEST_F(Selection, AsksForThePollerOfARunningRebuild) {
    metadata_sector marked = metadata_of(2, 1, 1900, disk_a());
    marked.flags = 0x80;
    krchip& chip = take_chip(member_a(2), member_b(2, &marked));
    chip.polling = false;
    chip.rebuild_pending = 0;
    select(chip);
    EXPECT_TRUE(chip.polling);
    EXPECT_EQ(chip.rebuild_pending, 1);
}

TEST_F(Selection, AsksForNoPollerWhenBothOrNoneAreMarkedOrTheArrayIsInvalid) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    chip.disks[0].rebuild_mark = 1;
    chip.disks[1].rebuild_mark = 1;
    select(chip);
    EXPECT_FALSE(chip.polling);
    chip.disks[1].rebuild_mark = 0;
    chip.raid_valid = 0;
    select(chip);
    EXPECT_FALSE(chip.polling);
}

TEST_F(Selection, AsksForAPollerOfAStripeWithAStrayMarkButStartsNoTimer) {
    metadata_sector marked = metadata_of(1, 1, 1900, disk_a());
    marked.flags = 0x80;
    krchip& chip = take_chip(member_a(1), member_b(1, &marked));
    chip.polling = false;
    select(chip);
    EXPECT_TRUE(chip.polling);
    EXPECT_EQ(log.take(), lines{});
}
