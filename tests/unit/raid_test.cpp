#include "model/raid.h"

#include <array>
#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "tests/support/fixture_file.h"
#include "tests/support/sectors.h"

namespace {

using time_text = std::array<unsigned char, raid_time_size>;

constexpr time_text stamp{'2', '0', '2', '4', '0', '2', '2', '9', '1', '2', '3', '4', '5', '6'};

const unsigned char* raw(const std::string& text) {
    return reinterpret_cast<const unsigned char*>(text.data());
}

// The record of the disk on port 0 beside disk B.
raid_info record(int mode, int flags, int extra, std::uint64_t capacity, bool large) {
    const std::string serial = stored_text("SN-B", serial_size);
    const std::string model = stored_text("DISK B", model_size);
    return create_raid_struct(mode, 0, flags, extra, capacity, raw(serial), raw(model), large,
                              stamp.data());
}

metadata_sector expected(int mode, std::uint64_t capacity) {
    return metadata_of(mode, 0, capacity, identify_of("DISK B", "SN-B", 0));
}

std::string text_of(const time_text& time) {
    return {time.begin(), time.end()};
}

// Local time in `zone` for as long as it lives. No other thread runs then.
class time_zone {
public:
    explicit time_zone(const char* zone) {
        setenv("TZ", zone, 1); // NOLINT(concurrency-mt-unsafe)
        tzset();
    }
    ~time_zone() {
        unsetenv("TZ"); // NOLINT(concurrency-mt-unsafe)
        tzset();
    }
    time_zone(const time_zone&) = delete;
    time_zone& operator=(const time_zone&) = delete;
};

std::string time_string(std::time_t now) {
    time_text time;
    time.fill(0xFF);
    GetTimeString(time.data(), now);
    return text_of(time);
}

std::string with_two_zeros(const std::string& digits) {
    return digits + std::string(2, '\0');
}

} // namespace

TEST(MetadataRecord, HasEveryByteInItsPlace) {
    EXPECT_EQ(hex_dump(record(mode_raid0, 0, 0, 1900, false).bytes),
              hex_dump(expected(1, 1900).bytes()));
}

TEST(MetadataRecord, OfARebuildSourceIsTheCommittedSector) {
    const std::string serial = stored_text("KT-0002", serial_size);
    const std::string model = stored_text("KESTREL TEST DISK B", model_size);
    const raid_info built = create_raid_struct(mode_raid1, 0, 0x80, 0, 3907029152, raw(serial),
                                               raw(model), false, stamp.data());
    EXPECT_EQ(hex_dump(built.bytes), hex_dump(fixture_file("metadata-raid1-rebuild-source")));
}

TEST(MetadataRecord, KeepsTheLowBitsOfItsNumbers) {
    const std::string serial(serial_size, '\0');
    const std::string model(model_size, '\0');
    const raid_info built = create_raid_struct(0x1102, 0x2201, 0x33080, 0x44030201, 0, raw(serial),
                                               raw(model), false, stamp.data());
    EXPECT_EQ(built.bytes[2], 0x02);
    EXPECT_EQ(built.bytes[3], 0x01);
    EXPECT_EQ(built.bytes[4], 0x80);
    EXPECT_EQ(built.bytes[5], 0x01);
    EXPECT_EQ(built.bytes[6], 0x02);
    EXPECT_EQ(built.bytes[7], 0x03);
    EXPECT_EQ(built.bytes[8], 0x00);
}

TEST(MetadataRecord, StoresTheCapacityLowByteFirst) {
    const raid_info built = record(mode_span, 0, 0, 0x8877665544332211, true);
    for (std::size_t i = 0; i < 8; ++i) {
        EXPECT_EQ(built.bytes[8 + i], 0x11 * (i + 1)) << "byte " << 8 + i;
    }
    EXPECT_EQ(built.raid_capacity(), 0x8877665544332211U);
    EXPECT_EQ(built.bytes[496], 1);
    EXPECT_TRUE(built.large_array());
}

TEST(MetadataRecord, OfExactlyTheSmallArrayLimitStandsAsItIsTold) {
    EXPECT_EQ(record(mode_raid0, 0, 0, 0x100000000, true).bytes, expected(1, 0x100000000).bytes());
    EXPECT_EQ(record(mode_raid0, 0, 0, 0xFFFFFFFF, false).bytes, expected(1, 0xFFFFFFFF).bytes());
}

TEST(MetadataRecord, EndsWithTheTagAndNothingBehindIt) {
    const raid_info built = record(mode_raid0, 0, 0, 1900, false);
    EXPECT_EQ(std::string(built.bytes.begin() + 504, built.bytes.end()), "Kestrel ");
    EXPECT_EQ(sizeof(raid_info), 512U);
}

TEST(MetadataRecord, IsMarkedByBitSevenAloneWhateverFollows) {
    raid_info marked = record(mode_raid1, 0x80, 0x030201, 1900, false);
    EXPECT_TRUE(marked.rebuild_mark());
    marked.bytes[4] = 0x7F;
    EXPECT_FALSE(marked.rebuild_mark());
}

TEST(MetadataRecord, LosesFourBytesWithItsMark) {
    raid_info marked = record(mode_raid1, 0x80, 0x030201, 1900, false);
    marked.clear_rebuild_flags();
    EXPECT_EQ(hex_dump(marked.bytes), hex_dump(expected(2, 1900).bytes()));
}

TEST(MetadataRecord, IsKnownByItsFirstTwoBytes) {
    raid_info sector;
    EXPECT_FALSE(sector.has_signature());
    sector.bytes[0] = 'K';
    EXPECT_FALSE(sector.has_signature());
    sector.bytes[1] = 'R';
    EXPECT_TRUE(sector.has_signature());
    sector.bytes[0] = 'k';
    EXPECT_FALSE(sector.has_signature());
}

TEST(TimeStamp, IsLocalTimeFromYearToSecond) {
    const time_zone utc("UTC");
    EXPECT_EQ(time_string(1709210096), with_two_zeros("20240229123456"));
}

TEST(TimeStamp, FollowsDaylightSaving) {
    const time_zone berlin("CET-1CEST,M3.5.0,M10.5.0/3");
    EXPECT_EQ(time_string(1720000000), with_two_zeros("20240703114640"));
    EXPECT_EQ(time_string(1706000000), with_two_zeros("20240123095320"));
}

// The clock shows 02:30 twice that night: which half is newer cannot be told then.
TEST(TimeStamp, GoesBackInTheAutumnHour) {
    const time_zone berlin("CET-1CEST,M3.5.0,M10.5.0/3");
    const std::string before = time_string(1729989000);
    const std::string later = time_string(1729989000 + 3600);
    EXPECT_EQ(before, with_two_zeros("20241027023000"));
    EXPECT_EQ(later, before);
}

TEST(TimeStamp, OfAYearWithoutFourDigitsIsZeros) {
    const time_zone utc("UTC");
    EXPECT_EQ(time_string(253402300800), std::string(16, '\0')); // 10000-01-01
    EXPECT_EQ(time_string(253402300799), with_two_zeros("99991231235959"));
    EXPECT_EQ(time_string(std::numeric_limits<std::time_t>::max()), std::string(16, '\0'));
    EXPECT_EQ(time_string(std::numeric_limits<std::time_t>::min()), std::string(16, '\0'));
}

TEST(TimeStamp, OfThePresentLiesBetweenTwoLooksAtTheClock) {
    const time_zone utc("UTC");
    const std::string before = time_string(std::time(nullptr));
    time_text now{};
    GetTimeString(now.data());
    const std::string after = time_string(std::time(nullptr));
    EXPECT_LE(before, text_of(now));
    EXPECT_LE(text_of(now), after);
}
