#include "enclosure/identify.h"

#include "enclosure/metadata.h"
#include "enclosure/problem.h"

#include "tests/enclosure/builders.h"

#include <gtest/gtest.h>

#include <numeric>

namespace enclosure {
namespace {

disk_label label_with(addressing mode, std::uint64_t sectors) {
    disk_label label = label_of(sectors);
    label.mode = mode;
    return label;
}

TEST(Identify, A48BitDiskOf8TerabytesReadsBackItsSize) {
    const identify_block block = build_identify(label_with(addressing::lba48, 15'628'053'168));
    EXPECT_EQ(identify_sectors(block), 15'628'053'168U);
    EXPECT_EQ(block[2 * 85 + 1] & 0x04, 0x04);
}

TEST(Identify, A28BitDiskHasItsSizeInWord60AndNo48BitMark) {
    const identify_block block = build_identify(label_with(addressing::lba28, 268'435'455));
    EXPECT_EQ(identify_sectors(block), 268'435'455U);
    EXPECT_EQ(block[2 * 85 + 1] & 0x04, 0);
    EXPECT_EQ(block[2 * 49 + 1] & 0x02, 0x02);
}

TEST(Identify, ADiskWithoutLbaHasWholeCylinders) {
    const identify_block block = build_identify(label_with(addressing::chs, 16 * 63 * 100 + 5));
    EXPECT_EQ(identify_sectors(block), 16U * 63 * 100);
    EXPECT_EQ(block[2 * 49 + 1] & 0x02, 0);
}

TEST(Identify, TheBytesOfABlockAddUpToZeroAndItIsSigned) {
    const identify_block block = build_identify(label_with(addressing::lba48, 1000));
    EXPECT_EQ(std::accumulate(block.begin(), block.end(), 0U) % 256, 0U);
    EXPECT_TRUE(identify_counts(block));
}

TEST(Identify, TextsAreSwappedInPairsAndPaddedWithBlanks) {
    disk_label label = label_of(1000);
    label.model = "ABC";
    const identify_block block = build_identify(label);
    EXPECT_EQ(block[54], 'B');
    EXPECT_EQ(block[55], 'A');
    EXPECT_EQ(block[56], ' ');
    EXPECT_EQ(block[57], 'C');
    EXPECT_EQ(block[93], ' ');
    EXPECT_EQ(identify_model(block), "ABC");
}

TEST(Identify, ARawBlockWith48BitMarkAndNoCountFallsBackTo28Bits) {
    identify_block block = build_identify(label_with(addressing::lba48, 5000));
    std::fill_n(block.begin() + 200, 8, std::uint8_t{0});
    EXPECT_EQ(identify_sectors(block), 5000U);
}

TEST(Identify, AProductOfCylindersBeyond31BitsReadsAsHuge) {
    identify_block block{};
    for (const std::size_t at : {108U, 109U, 110U, 111U}) {
        block[at] = 0xFF;
    }
    block[112] = 1; // 65535 * 65535 sectors
    EXPECT_GT(identify_sectors(block), 0xFFFFFFFF00000000U);
    EXPECT_THROW(check_disk_size(identify_sectors(block)), problem);
}

TEST(Identify, WhatDoesNotFitIsRefused) {
    disk_label label = label_of(1000);
    label.model = std::string(41, 'M');
    EXPECT_THROW(build_identify(label), problem);
    label = label_of(1000);
    label.serial = "tab\t";
    EXPECT_THROW(build_identify(label), problem);
    EXPECT_THROW(build_identify(label_with(addressing::lba28, 268'435'456)), problem);
    EXPECT_THROW(build_identify(label_with(addressing::chs, 1007)), problem);
    EXPECT_THROW(build_identify(label_with(addressing::lba48, 0)), problem);
    EXPECT_THROW(build_identify(label_with(addressing::lba48, 1ULL << 38)), problem);
}

TEST(Identify, ABlockIsReadFromBytesAndFromDigits) {
    const identify_block block = build_identify(label_of(1000));
    const std::string bytes(block.begin(), block.end());
    EXPECT_EQ(parse_identify(bytes, "file"), block);

    std::string digits;
    for (const std::uint8_t byte : block) {
        constexpr std::string_view hex = "0123456789ABCDEF";
        digits += {hex[byte >> 4], hex[byte & 0xF], digits.size() % 64 == 0 ? '\n' : ' '};
    }
    EXPECT_EQ(parse_identify(digits, "file"), block);
}

TEST(Identify, OtherContentIsNoBlock) {
    EXPECT_THROW(parse_identify("", "file"), problem);
    EXPECT_THROW(parse_identify(std::string(511, 'x'), "file"), problem);
    EXPECT_THROW(parse_identify(std::string(1024, 'g'), "file"), problem);
}

TEST(Metadata, ARecordReadsBackAsItWasWritten) {
    array_record record;
    record.kind = array_kind::mirror;
    record.member = 1;
    record.copy_source = true;
    record.sectors = 0x123456789A;
    record.partner = identity_of(build_identify(label_of(1000, "other")));
    record.stamp = stamp_of("20240301093000");
    const sector_data sector = write_record(record);
    EXPECT_EQ(read_record(sector), record);
    EXPECT_EQ(sector[4], 0x80);
    EXPECT_EQ(sector[496], 1);
    EXPECT_EQ(std::string(sector.begin() + 504, sector.end()), "Kestrel ");
}

TEST(Metadata, ASectorWithoutSignatureIsNoRecord) {
    sector_data sector = write_record({});
    sector[1] ^= 1;
    EXPECT_EQ(read_record(sector), std::nullopt);
}

TEST(Metadata, AKindThatDoesNotExistIsNone) {
    sector_data sector = write_record({});
    sector[2] = 3;
    ASSERT_TRUE(read_record(sector));
    EXPECT_EQ(read_record(sector)->kind, array_kind::none);
}

TEST(Metadata, ADiskOf15SectorsHasNoPlaceForARecord) {
    EXPECT_EQ(record_address(15), std::nullopt);
    EXPECT_EQ(record_address(16), 1U);
}

} // namespace
} // namespace enclosure
