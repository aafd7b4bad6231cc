#include "model/krdisk.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <string>

#include "tests/support/fixture_file.h"
#include "tests/support/sectors.h"

namespace {

krdisk disk_from(const sector_bytes& identify) {
    krdisk disk;
    disk.initialize(reinterpret_cast<const char*>(identify.data()));
    return disk;
}

krdisk disk_from(const identify_block& block) {
    return disk_from(block.bytes());
}

template<std::size_t N> std::string text_of(const std::array<unsigned char, N>& bytes) {
    return {bytes.begin(), bytes.end()};
}

// 48-bit addressing announced, but without a count, and no LBA at all.
identify_block chs_block(std::uint16_t cylinders, std::uint16_t heads, std::uint16_t sectors) {
    identify_block block;
    block.lba = false;
    block.cylinders = cylinders;
    block.heads = heads;
    block.sectors_per_track = sectors;
    return block;
}

// The rules of the size, stated a second time and in another way.
void expect_size(const krdisk& disk, const sector_bytes& b) {
    const auto number = [&b](std::size_t offset, int width) {
        std::uint64_t value = 0;
        for (int i = width; i > 0; --i) {
            value = value * 256 + b[offset + static_cast<std::size_t>(i) - 1];
        }
        return value;
    };
    if ((b[171] & 0x04) != 0 && number(200, 8) != 0) {
        EXPECT_EQ(disk.capacity, number(200, 8));
        EXPECT_EQ(disk.address_mode, 1U);
    } else if ((b[99] & 0x02) != 0) {
        EXPECT_EQ(disk.capacity, number(120, 4));
        EXPECT_EQ(disk.address_mode, 2U);
    } else {
        const std::uint64_t product =
            number(108, 2) * number(110, 2) * number(112, 2) % 0x100000000U;
        const std::uint64_t sign = product >= 0x80000000U ? 0xFFFFFFFF00000000U : 0;
        EXPECT_EQ(disk.capacity, sign + product);
        EXPECT_EQ(disk.address_mode, 3U);
    }
}

// A block whose word 106 is `kind`, with a logical sector of `words` 16-bit words.
sector_bytes with_sectors_of(unsigned kind, std::uint32_t words) {
    sector_bytes block = identify_of("M", "S", 5000).bytes();
    block[212] = static_cast<unsigned char>(kind & 0xFFU);
    block[213] = static_cast<unsigned char>(kind >> 8);
    for (std::size_t i = 0; i < 4; ++i) {
        block[234 + i] = static_cast<unsigned char>(words >> (8 * i));
    }
    return block;
}

} // namespace

TEST(DiskRecord, BeginsBlank) {
    const krdisk disk;
    EXPECT_EQ(disk.capacity, 0U);
    EXPECT_EQ(disk.model, "");
    EXPECT_EQ(disk.serial, "");
    EXPECT_EQ(disk.raid_mode, 0);
    EXPECT_EQ(disk.member_mismatch + disk.raid1_orphan + disk.rebuild_mark + disk.present, 0);
    EXPECT_EQ(disk.rebuild_role, 0U);
    EXPECT_EQ(disk.raid_capacity, 0U);
    EXPECT_EQ(disk.address_mode, 1U);
    EXPECT_EQ(disk.lba48_sectors, 0U);
    EXPECT_EQ(disk.logical_sector_bytes, 512U);
    EXPECT_EQ(disk.raid_info_raw.bytes, sector_bytes{});
}

TEST(DiskRecord, TurnsTheModelIntoReadingOrderAndTrimsIt) {
    const krdisk disk = disk_from(identify_of("KESTREL DISK 7", "SN-77", 5000));
    EXPECT_EQ(disk.model, "KESTREL DISK 7");
    EXPECT_EQ(disk.serial, "SN-77");
}

TEST(DiskRecord, KeepsTheStoredPaddedBytes) {
    const krdisk disk = disk_from(identify_of("AB", "CD", 5000));
    EXPECT_EQ(text_of(disk.identify_model_raw), "BA" + std::string(38, ' '));
    EXPECT_EQ(text_of(disk.identify_serial_raw), "DC" + std::string(18, ' '));
}

TEST(DiskRecord, TrimsASerialNumberThatStandsAtTheRight) {
    const krdisk disk = disk_from(identify_of("M", "               SN-77", 5000));
    EXPECT_EQ(disk.serial, "SN-77");
}

TEST(DiskRecord, KeepsZeroBytesOfATextPaddedWithThem) {
    const krdisk disk = disk_from(fixture_file("identify-padded-with-zero-bytes"));
    EXPECT_EQ(disk.model, "KESTREL TEST DISK A" + std::string(21, '\0'));
    EXPECT_EQ(disk.serial, "KT-0001" + std::string(13, '\0'));
}

TEST(DiskRecord, KeepsHostileTextsAsBytes) {
    const krdisk disk = disk_from(fixture_file("identify-hostile-texts"));
    EXPECT_EQ(disk.model, "<img src=x>\r\n\x07\xFF&amp;");
    EXPECT_EQ(disk.serial, std::string("\0\0\x01%s%n\xE4", 8));
}

TEST(DiskSize, ComesFromTheFortyEightBitCount) {
    const krdisk disk = disk_from(fixture_file("identify-48bit"));
    EXPECT_EQ(disk.capacity, 3907029168U);
    EXPECT_EQ(disk.address_mode, 1U);
    EXPECT_EQ(disk.metadata_lba(), 3907029153U);
}

TEST(DiskSize, ComesFromTheTwentyEightBitCountWithoutFortyEightBitAddressing) {
    const krdisk disk = disk_from(fixture_file("identify-28bit"));
    EXPECT_EQ(disk.capacity, 78165360U);
    EXPECT_EQ(disk.address_mode, 2U);
}

TEST(DiskSize, FallsBackToTwentyEightBitsWhenTheFortyEightBitCountIsZero) {
    identify_block block;
    block.sectors28 = 1000;
    const krdisk disk = disk_from(block);
    EXPECT_EQ(disk.capacity, 1000U);
    EXPECT_EQ(disk.address_mode, 2U);
}

TEST(DiskSize, IsTheChsProductWhenTheFortyEightBitCountIsZeroAndThereIsNoLba) {
    const krdisk disk = disk_from(fixture_file("identify-48bit-count-zero"));
    EXPECT_EQ(disk.capacity, std::uint64_t{16383} * 16 * 63);
    EXPECT_EQ(disk.address_mode, 3U);
}

TEST(DiskSize, BecomesHugeWhenTheChsProductExceedsThirtyOneBits) {
    EXPECT_EQ(disk_from(chs_block(32768, 256, 256)).capacity, 0xFFFFFFFF80000000U);
    EXPECT_EQ(disk_from(chs_block(32767, 256, 256)).capacity, 0x7FFF0000U);
    const krdisk disk = disk_from(fixture_file("identify-chs-beyond-31-bits"));
    EXPECT_EQ(disk.capacity, 0xFFFFFFFF00000000U + std::uint64_t{65535} * 255 * 255);
    EXPECT_EQ(disk.address_mode, 3U);
}

TEST(DiskSize, TakesTheChsProductInThirtyTwoBits) {
    EXPECT_EQ(disk_from(chs_block(65535, 65535, 65535)).capacity,
              std::uint64_t{65535} * 65535 * 65535 % 0x100000000U);
    EXPECT_EQ(disk_from(chs_block(0, 0, 0)).capacity, 0U);
}

TEST(DiskSize, OfADiskThatHidesItsFortyEightBitAddressingIsTheTwentyEightBitCount) {
    const krdisk disk = disk_from(fixture_file("identify-bit-clear-although-beyond-28-bits"));
    EXPECT_EQ(disk.capacity, 268435455U);
    EXPECT_EQ(disk.address_mode, 2U);
}

TEST(DiskSize, UsesAllSixtyFourBitsOfTheCount) {
    EXPECT_EQ(disk_from(identify_of("M", "S", 0xFFFFFFFFFFFFFFFF)).capacity, 0xFFFFFFFFFFFFFFFFU);
}

TEST(FortyEightBitCount, IsKeptWhetherOrNotTheSizeComesFromIt) {
    EXPECT_EQ(disk_from(fixture_file("identify-48bit")).lba48_sectors, 3907029168U);
    const krdisk hiding = disk_from(fixture_file("identify-bit-clear-although-beyond-28-bits"));
    EXPECT_EQ(hiding.lba48_sectors, 625142448U);
    EXPECT_EQ(hiding.capacity, 268435455U);
    EXPECT_EQ(disk_from(fixture_file("identify-48bit-count-zero")).lba48_sectors, 0U);
}

TEST(FortyEightBitCount, HasItsLowWordFirst) {
    sector_bytes block = identify_of("M", "S", 0).bytes();
    for (std::size_t i = 0; i < 8; ++i) {
        block[200 + i] = static_cast<unsigned char>(0x11 * (i + 1));
    }
    block[171] = 0; // without 48-bit addressing
    const krdisk disk = disk_from(block);
    EXPECT_EQ(disk.lba48_sectors, 0x8877665544332211U);
    EXPECT_EQ(disk.address_mode, 2U);
}

TEST(SectorLength, Is512BytesUnlessTheDiskAnnouncesAnother) {
    for (const unsigned kind : {0U, 0x4000U, 0x1000U, 0x6003U, 0x9000U, 0xD000U, 0xFFFFU}) {
        EXPECT_EQ(disk_from(with_sectors_of(kind, 2048)).logical_sector_bytes, 512U)
            << "word 106 is " << kind;
    }
}

TEST(SectorLength, IsTwiceTheAnnouncedNumberOfWords) {
    for (const unsigned kind : {0x5000U, 0x7003U, 0x5FFFU}) {
        EXPECT_EQ(disk_from(with_sectors_of(kind, 2048)).logical_sector_bytes, 4096U);
        EXPECT_EQ(disk_from(with_sectors_of(kind, 0x80000100)).logical_sector_bytes, 0x100000200U);
        EXPECT_EQ(disk_from(with_sectors_of(kind, 260)).logical_sector_bytes, 520U);
        EXPECT_EQ(disk_from(with_sectors_of(kind, 256)).logical_sector_bytes, 512U);
        EXPECT_EQ(disk_from(with_sectors_of(kind, 0)).logical_sector_bytes, 0U);
        EXPECT_EQ(disk_from(with_sectors_of(kind, 0x00010203)).logical_sector_bytes, 0x20406U);
    }
}

TEST(SectorLength, OfAFormerDiskIsForgotten) {
    krdisk disk = disk_from(with_sectors_of(0x5000, 2048));
    const sector_bytes other = identify_of("DISK C", "SN-C", 6000).bytes();
    disk.initialize(reinterpret_cast<const char*>(other.data()));
    EXPECT_EQ(disk.logical_sector_bytes, 512U);
    EXPECT_EQ(disk.lba48_sectors, 6000U);
}

TEST(MetadataAddress, LiesBeyondAnyDiskWhenTheSizeIsUnknownOrTooSmall) {
    krdisk disk;
    EXPECT_EQ(disk.metadata_lba(), 0xFFFFFFFFFFFFFFF1U);
    disk.capacity = 14;
    EXPECT_EQ(disk.metadata_lba(), 0xFFFFFFFFFFFFFFFFU);
    disk.capacity = 15;
    EXPECT_EQ(disk.metadata_lba(), 0U);
}

TEST(PartnerOfADisk, IsNobodyOnlyWhenAllBytesOfModelAndSerialAreZero) {
    krdisk disk;
    EXPECT_TRUE(disk.names_nobody());
    for (const std::size_t place : {std::size_t{0}, model_size - 1}) {
        disk.partner_model_raw[place] = 1;
        EXPECT_FALSE(disk.names_nobody());
        disk.partner_model_raw[place] = 0;
    }
    for (const std::size_t place : {std::size_t{0}, serial_size - 1}) {
        disk.partner_serial_raw[place] = 1;
        EXPECT_FALSE(disk.names_nobody());
        disk.partner_serial_raw[place] = 0;
    }
}

TEST(DiskRecord, ClearedLosesOnlyItsPresence) {
    krdisk disk = disk_from(identify_of("DISK A", "SN-A", 5000));
    disk.present = 1;
    disk.raid_mode = 2;
    disk.rebuild_mark = 1;
    disk.raid1_orphan = 1;
    disk.rebuild_role = 2;
    disk.raid_capacity = 77;
    disk.clear();
    EXPECT_EQ(disk.present, 0);
    EXPECT_EQ(disk.model, "DISK A");
    EXPECT_EQ(disk.serial, "SN-A");
    EXPECT_EQ(disk.capacity, 5000U);
    EXPECT_EQ(disk.raid_mode, 2);
    EXPECT_EQ(disk.rebuild_mark, 1);
    EXPECT_EQ(disk.raid1_orphan, 1);
    EXPECT_EQ(disk.rebuild_role, 2U);
    EXPECT_EQ(disk.raid_capacity, 77U);
}

TEST(DiskRecord, InitialisedAgainKeepsPresenceAndArrayFields) {
    krdisk disk = disk_from(identify_of("DISK A", "SN-A", 5000));
    disk.present = 1;
    disk.raid_mode = 4;
    disk.raid_capacity = 9;
    const sector_bytes other = identify_of("DISK C", "SN-C", 6000).bytes();
    disk.initialize(reinterpret_cast<const char*>(other.data()));
    EXPECT_EQ(disk.model, "DISK C");
    EXPECT_EQ(disk.present, 1);
    EXPECT_EQ(disk.raid_mode, 4);
    EXPECT_EQ(disk.raid_capacity, 9U);
}

TEST(Unscramble, SwapsPairsAndLeavesALoneLastCharacter) {
    std::string text = "BADCE";
    krdisk::unscramble(text);
    EXPECT_EQ(text, "ABCDE");
    text.clear();
    krdisk::unscramble(text);
    EXPECT_EQ(text, "");
}

TEST(DiskLabel, TellsPortAndMembership) {
    const krdisk disk = disk_from(identify_of("DISK A", "SN-A", 5000));
    EXPECT_EQ(disk.get_display_string(false, false, false), "P0: DISK A");
    EXPECT_EQ(disk.get_display_string(true, false, false), "P1: DISK A");
    EXPECT_EQ(disk.get_display_string(false, true, false), "M0: DISK A");
    EXPECT_EQ(disk.get_display_string(true, true, false), "M1: DISK A");
}

TEST(DiskLabel, IgnoresItsThirdArgument) {
    const krdisk disk = disk_from(identify_of("DISK A", "SN-A", 5000));
    EXPECT_EQ(disk.get_display_string(true, false, true), "P1: DISK A");
}

TEST(DiskMembership, IsStripeMirrorOrSpanAndNoOtherNumber) {
    krdisk disk;
    for (int mode = -1; mode <= 300; ++mode) {
        disk.raid_mode = mode;
        EXPECT_EQ(disk.is_member(), mode == 1 || mode == 2 || mode == 4) << "mode " << mode;
    }
}

TEST(DiskRecord, TakesAHundredThousandRandomBlocksAsTheRulesSay) {
    constexpr unsigned seed = 20240229;
    std::mt19937_64 random(seed);
    for (int i = 0; i < 100000; ++i) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", block " + std::to_string(i));
        sector_bytes block{};
        std::generate(block.begin(), block.end(),
                      [&random] { return static_cast<unsigned char>(random()); });
        if (i % 3 == 0) {
            std::fill(block.begin() + 200, block.begin() + 208, static_cast<unsigned char>(0));
        }
        const krdisk disk = disk_from(block);
        expect_size(disk, block);
        ASSERT_LE(disk.model.size(), model_size);
        ASSERT_LE(disk.serial.size(), serial_size);
        ASSERT_TRUE(std::equal(disk.identify_model_raw.begin(), disk.identify_model_raw.end(),
                               block.begin() + 54));
        ASSERT_TRUE(std::equal(disk.identify_serial_raw.begin(), disk.identify_serial_raw.end(),
                               block.begin() + 20));
        if (HasFailure()) {
            return;
        }
    }
}
