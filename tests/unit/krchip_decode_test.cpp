#include "model/krchip.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <random>
#include <string>

#include "tests/support/fixture.h"
#include "tests/support/fixture_file.h"

namespace {

constexpr std::uint64_t array_size = 1900; // sectors

// The name of what is 1; any other number is told as well.
std::string named(int value, const std::string& name) {
    return value == 1 ? name : name + "=" + std::to_string(value);
}

std::string flag(int value, const std::string& name) {
    return value != 0 ? " " + named(value, name) : "";
}

std::string state_of(const krdisk& disk) {
    return (disk.present != 0 ? named(disk.present, "mode") + " " + std::to_string(disk.raid_mode)
                              : "absent") +
           flag(disk.member_mismatch, "mismatch") + flag(disk.raid1_orphan, "orphan") +
           flag(disk.rebuild_mark, "marked") +
           (disk.rebuild_role != 0 ? " role " + std::to_string(disk.rebuild_role) : "");
}

// What the chip's record says, as a line for the whole and one for each disk.
std::string state_of(const krchip& chip) {
    const std::string array = chip.raid_valid != 0 ? named(chip.raid_valid, "valid") + " " +
                                                         std::to_string(chip.raid_mode) + " of " +
                                                         std::to_string(chip.raid_capacity)
                                                   : "no array";
    return array + flag(chip.rebuild_possible, "possible") + flag(chip.rebuild_pending, "pending") +
           flag(chip.polling ? 1 : 0, "polling") + "\n" + state_of(chip.disks[0]) + "\n" +
           state_of(chip.disks[1]);
}

// Port 0's disk names disk B, port 1's names disk A.
metadata_sector record_a(int mode) {
    return metadata_of(mode, 0, array_size, disk_b());
}
metadata_sector record_b(int mode) {
    return metadata_of(mode, 1, array_size, disk_a());
}

metadata_sector changed(metadata_sector sector, const std::function<void(metadata_sector&)>& how) {
    how(sector);
    return sector;
}

metadata_sector marked(metadata_sector sector) {
    sector.flags = 0x80;
    return sector;
}

metadata_sector dated(metadata_sector sector, const std::string& time) {
    sector.time = time;
    return sector;
}

metadata_sector alone(metadata_sector sector) {
    sector.partner_serial = std::string(20, '\0');
    sector.partner_model = std::string(40, '\0');
    return sector;
}

metadata_sector naming(metadata_sector sector, const identify_block& partner) {
    sector.partner_serial = stored_text(partner.serial, 20);
    sector.partner_model = stored_text(partner.model, 40);
    return sector;
}

metadata_sector blank() {
    metadata_sector sector;
    sector.signature = "";
    return sector;
}

struct scenario {
    std::string name;
    std::optional<metadata_sector> disk0; // nothing: no disk
    std::optional<metadata_sector> disk1;
    std::string state;
};

std::optional<memory_disk> disk_with(const identify_block& block,
                                     const std::optional<metadata_sector>& sector) {
    return sector ? std::optional(memory_disk(block, *sector)) : std::nullopt;
}

const std::string early = "20230101000000";
const std::string late = "20240101000000";

// NOLINTNEXTLINE(cert-err58-cpp): a failure here fails the whole executable, as it should
const std::vector<scenario> pairs_in_order = {
    {"AStripeWhoseMembersNameEachOther", record_a(1), record_b(1),
     "valid 1 of 1900\nmode 1\nmode 1"},
    {"ASpanWhoseMembersNameEachOther", record_a(4), record_b(4), "valid 4 of 1900\nmode 4\nmode 4"},
    {"AMirrorInOrder", record_a(2), record_b(2), "valid 2 of 1900 possible\nmode 2\nmode 2"},
    {"AMirrorIsNotCheckedForItsPartners", naming(record_a(2), disk_a()), alone(record_b(2)),
     "valid 2 of 1900 possible\nmode 2\nmode 2"},
    {"ModeThreeOnBothDisksPasses", alone(record_a(3)), alone(record_b(3)),
     "valid 3 of 1900\nmode 3\nmode 3"},
    {"AStripeWrittenAtTwoTimesIsStillValid", dated(record_a(1), early), dated(record_b(1), late),
     "valid 1 of 1900\nmode 1\nmode 1"},
    {"TheSizeIsThatOfDiskZeroWhenTheRecordsDiffer",
     changed(record_a(2), [](metadata_sector& s) { s.capacity = 1800; }), record_b(2),
     "valid 2 of 1800 possible\nmode 2\nmode 2"},
};

// NOLINTNEXTLINE(cert-err58-cpp)
const std::vector<scenario> rebuilds = {
    {"OneMarkedHalfIsARebuildToRun", marked(record_a(2)), record_b(2),
     "valid 2 of 1900 possible pending polling\nmode 2 marked\nmode 2"},
    {"TheMarkMayBeOnDiskOne", record_a(2), marked(record_b(2)),
     "valid 2 of 1900 possible pending polling\nmode 2\nmode 2 marked"},
    {"DifferentTimesWithExactlyOneMarkAreARebuildToRun", marked(dated(record_a(2), early)),
     dated(record_b(2), late), "valid 2 of 1900 possible pending polling\nmode 2 marked\nmode 2"},
    {"AMarkWithTheOtherThreeBytesSetIsAMark",
     changed(marked(record_a(2)), [](metadata_sector& s) { s.extra = 0x030201; }), record_b(2),
     "valid 2 of 1900 possible pending polling\nmode 2 marked\nmode 2"},
    {"TheOtherBitsOfTheFlagsAreNoMark",
     changed(record_a(2), [](metadata_sector& s) { s.flags = 0x7F; }), record_b(2),
     "valid 2 of 1900 possible\nmode 2\nmode 2"},
    {"BothMarkedWithEqualTimesIsAMirrorInOrder", marked(record_a(2)), marked(record_b(2)),
     "valid 2 of 1900 possible\nmode 2 marked\nmode 2 marked"},
    {"AStripeWithOneStrayMarkCountsAsRebuilding", marked(record_a(1)), record_b(1),
     "valid 1 of 1900 pending polling\nmode 1 marked\nmode 1"},
};

// NOLINTNEXTLINE(cert-err58-cpp)
const std::vector<scenario> diverged = {
    {"TheLaterHalfOnDiskOneGetsRoleOne", dated(record_a(2), early), dated(record_b(2), late),
     "no array possible\nmode 2 role 2\nmode 2 role 1"},
    {"TheLaterHalfOnDiskZeroGetsRoleOne", dated(record_a(2), late), dated(record_b(2), early),
     "no array possible\nmode 2 role 1\nmode 2 role 2"},
    {"BothMarkedWithDifferentTimesHaveDiverged", marked(dated(record_a(2), early)),
     marked(dated(record_b(2), late)),
     "no array possible\nmode 2 marked role 2\nmode 2 marked role 1"},
    {"TheSixteenthByteOfTheTimeCounts",
     changed(record_a(2), [](metadata_sector& s) { s.time += std::string("\0\x01", 2); }),
     record_b(2), "no array possible\nmode 2 role 1\nmode 2 role 2"},
    {"TimesAreComparedAsUnsignedBytes", dated(record_a(2), "\xFF"), dated(record_b(2), late),
     "no array possible\nmode 2 role 1\nmode 2 role 2"},
};

// NOLINTNEXTLINE(cert-err58-cpp)
const std::vector<scenario> broken = {
    {"AStripeWhoseSecondDiskWasReplacedByABlankOne", record_a(1), blank(),
     "no array\nmode 1 mismatch\nmode 0"},
    {"AStripeWhoseFirstDiskIsGone", std::nullopt, record_b(1), "no array\nabsent\nmode 1 mismatch"},
    {"ASpanWhoseSecondDiskIsGone", record_a(4), std::nullopt, "no array\nmode 4 mismatch\nabsent"},
    {"AStripeOneHalfOfWhichNamesAnotherModel",
     naming(record_a(1), identify_of("DISK C", "SN-B", 0)), record_b(1),
     "no array\nmode 1 mismatch\nmode 1"},
    {"ASpanOneHalfOfWhichNamesAnotherSerialNumber", record_a(4),
     naming(record_b(4), identify_of("DISK A", "SN-C", 0)), "no array\nmode 4\nmode 4 mismatch"},
    {"AStripeMemberBesideASpanMember", record_a(1), record_b(4),
     "no array\nmode 1 mismatch\nmode 4 mismatch"},
    {"AMirrorMemberBesideAStripeMember", record_a(2), record_b(1),
     "no array possible\nmode 2\nmode 1 mismatch"},
    {"AMirrorMemberAlone", record_a(2), std::nullopt, "no array\nmode 2 orphan\nabsent"},
    {"AMirrorMemberOnPortOneAlone", std::nullopt, record_b(2), "no array\nabsent\nmode 2 orphan"},
    {"AMirrorMemberBesideABlankDisk", record_a(2), blank(),
     "no array possible\nmode 2 orphan\nmode 0"},
    {"AMirrorMemberBesideModeThree", record_a(2), record_b(3),
     "no array possible\nmode 2 orphan\nmode 3"},
    {"AMirrorMemberBesideMode255", record_a(2), record_b(255),
     "no array possible\nmode 2 orphan\nmode 255"},
    {"ADegradedMirrorMemberAlone", alone(record_a(2)), std::nullopt,
     "no array\nmode 2 orphan\nabsent"},
    {"TwoBlankDisks", blank(), blank(), "no array\nmode 0\nmode 0"},
    {"NoDisks", std::nullopt, std::nullopt, "no array\nabsent\nabsent"},
    {"TwoDisksOfModeZero", record_a(0), record_b(0), "no array\nmode 0\nmode 0"},
    {"TwoDisksOfModeFive", record_a(5), record_b(5), "no array\nmode 5\nmode 5"},
};

class ArrayState : public model_test, public testing::WithParamInterface<scenario> {};

std::string name_of(const testing::TestParamInfo<scenario>& info) {
    return info.param.name;
}

class EveryMode : public model_test, public testing::WithParamInterface<int> {};

class ArrayStateDecoding : public model_test {
protected:
    void expect_state(krchip& chip, const std::string& state) {
        const gate_scope work(j.gate);
        chip.read_raid_combined_info();
        EXPECT_EQ(state_of(chip), state);
    }
};

void put_metadata(scripted_library& library, int port, const sector_bytes& sector) {
    library.with_bridges([&](memory_enclosure& all) {
        memory_disk& disk =
            all.bridges.front().second.disks.at(static_cast<std::size_t>(port)).value();
        disk.sectors[disk.size - 15] = sector;
    });
}

} // namespace

TEST_P(ArrayState, IsDecodedFromThePair) {
    const krchip& chip =
        take_chip(disk_with(disk_a(), GetParam().disk0), disk_with(disk_b(), GetParam().disk1));
    EXPECT_EQ(state_of(chip), GetParam().state);
}

INSTANTIATE_TEST_SUITE_P(InOrder, ArrayState, testing::ValuesIn(pairs_in_order), name_of);
INSTANTIATE_TEST_SUITE_P(Rebuild, ArrayState, testing::ValuesIn(rebuilds), name_of);
INSTANTIATE_TEST_SUITE_P(Diverged, ArrayState, testing::ValuesIn(diverged), name_of);
INSTANTIATE_TEST_SUITE_P(Broken, ArrayState, testing::ValuesIn(broken), name_of);

// Byte 2 of the sector may hold anything; 6 to 255 are kept as read and form no array.
TEST_P(EveryMode, BeyondTheKnownOnesIsKeptAndFormsNoArray) {
    const std::string mode = "mode " + std::to_string(GetParam());
    const krchip& chip = take_chip(memory_disk(disk_a(), record_a(GetParam())),
                                   memory_disk(disk_b(), record_b(GetParam())));
    EXPECT_EQ(state_of(chip), "no array\n" + mode + "\n" + mode);
}

INSTANTIATE_TEST_SUITE_P(Bytes, EveryMode, testing::Range(6, 256));

TEST_F(ArrayStateDecoding, KeepsModeAndSizeOfTheLastArrayWhenItIsLost) {
    krchip& chip = take_chip(member_a(1), member_b(1));
    chip.disks[1].present = 0;
    expect_state(chip, "no array\nmode 1 mismatch\nabsent");
    EXPECT_EQ(chip.raid_mode, 1);
    EXPECT_EQ(chip.raid_capacity, array_size);
}

TEST_F(ArrayStateDecoding, LeavesAPendingRebuildUntouchedWhenTheHalvesHaveDiverged) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    chip.rebuild_pending = 1;
    chip.disks[0].raid_time[0] = 'X';
    expect_state(chip, "no array possible pending\nmode 2 role 1\nmode 2 role 2");
    EXPECT_EQ(chip.raid_mode, 2);
    EXPECT_EQ(chip.raid_capacity, array_size);
}

TEST_F(ArrayStateDecoding, EndsAPendingRebuildOfAMirrorInOrder) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    chip.rebuild_pending = 1;
    expect_state(chip, "valid 2 of 1900 possible\nmode 2\nmode 2");
}

TEST_F(ArrayStateDecoding, ForgetsTheRolesOfTheLastTime) {
    krchip& chip = take_chip(member_a(2), member_b(2));
    chip.disks[0].rebuild_role = 1;
    chip.disks[1].rebuild_role = 2;
    chip.disks[1].present = 0;
    expect_state(chip, "no array\nmode 2 orphan\nabsent");
}

TEST_F(ArrayStateDecoding, ForgetsMismatchAndOrphanOfTheLastTime) {
    krchip& chip = take_chip(member_a(1), std::nullopt);
    EXPECT_EQ(chip.disks[0].member_mismatch, 1);
    chip.disks[0].raid_mode = 0;
    chip.disks[0].raid1_orphan = 1;
    expect_state(chip, "no array\nmode 0\nabsent");
}

TEST_F(ArrayStateDecoding, ComparesAllFortyAndTwentyBytesOfAPartner) {
    for (const std::size_t last : {std::size_t{0}, model_size - 1}) {
        world().reset();
        krchip& chip = take_chip(member_a(1), member_b(1));
        chip.disks[1].identify_model_raw[last] ^= 1;
        expect_state(chip, "no array\nmode 1 mismatch\nmode 1");
    }
    world().reset();
    krchip& chip = take_chip(member_a(1), member_b(1));
    chip.disks[0].identify_serial_raw[serial_size - 1] ^= 1;
    expect_state(chip, "no array\nmode 1\nmode 1 mismatch");
}

TEST_F(ArrayStateDecoding, OfCommittedSectors) {
    const identify_block big = identify_of("KESTREL TEST DISK B", "KT-0002", 3907029168);
    for (const auto& [name, state] : std::vector<std::pair<std::string, std::string>>{
             {"metadata-raid1-rebuild-source", "no array possible\nmode 2 orphan marked\nmode 0"},
             {"metadata-raid1-degraded", "no array possible\nmode 2 orphan\nmode 0"},
             {"metadata-raid0-large", "no array\nmode 1 mismatch\nmode 0"},
             {"metadata-mode-255", "no array\nmode 255\nmode 0"},
             {"metadata-without-signature", "no array\nmode 0\nmode 0"},
             {"metadata-random-bytes", "no array\nmode 0\nmode 0"}}) {
        SCOPED_TRACE(name);
        world().reset();
        krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(big));
        put_metadata(library, 0, fixture_file(name));
        const gate_scope work(j.gate);
        chip.read_raid_info();
        EXPECT_EQ(state_of(chip), state);
    }
}

TEST_F(ArrayStateDecoding, TakesAHundredThousandRandomSectorsAndStaysWithinItsStates) {
    constexpr unsigned seed = 20240301;
    std::mt19937_64 random(seed);
    krchip& chip = take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    const gate_scope work(j.gate);
    log.keep_only(0);
    for (int i = 0; i < 50000; ++i) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", pair " + std::to_string(i));
        for (const int port : {0, 1}) {
            sector_bytes sector{};
            std::generate(sector.begin(), sector.end(),
                          [&random] { return static_cast<unsigned char>(random()); });
            sector[0] = 'K';
            sector[1] = 'R';
            // Half of the modes are ones that can form an array.
            sector[2] = (i & 1) != 0 ? static_cast<unsigned char>(sector[2] % 5) : sector[2];
            put_metadata(library, port, sector);
            chip.disks[static_cast<std::size_t>(port)].rebuild_mark = 0;
        }
        chip.read_raid_info();
        const krdisk& d0 = chip.disks[0];
        const krdisk& d1 = chip.disks[1];
        if (chip.raid_valid != 0) {
            // Random bytes name no partner: only what is not checked for it can be valid.
            ASSERT_EQ(d0.raid_mode, d1.raid_mode);
            ASSERT_TRUE(d0.raid_mode == 2 || d0.raid_mode == 3);
            ASSERT_TRUE(d0.rebuild_mark + d1.rebuild_mark == 1 || d0.raid_mode == 3);
        }
        ASSERT_EQ(d0.member_mismatch != 0, d0.raid_mode == 1 || d0.raid_mode == 4);
        ASSERT_EQ(d0.raid1_orphan != 0, d0.raid_mode == 2 && !d1.is_member());
        ASSERT_EQ(d0.rebuild_role + d1.rebuild_role == 3,
                  d0.raid_mode == 2 && d1.raid_mode == 2 && chip.raid_valid == 0);
    }
}
