// Any command bytes are safe and change nothing but what they are for.
#include "enclosure/chip.h"
#include "enclosure/numbers.h"
#include "enclosure/opcodes.h"
#include "enclosure/scenario.h"

#include "tests/enclosure/builders.h"
#include "tests/enclosure/temporary_folder.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace enclosure {
namespace {

constexpr std::uint64_t disk_sectors = 2048;
constexpr int rounds = 100'000;

class random_commands {
public:
    std::vector<std::uint8_t> cdb() {
        std::vector<std::uint8_t> bytes = some(below(20));
        if (!bytes.empty() && below(4) != 0) {
            constexpr std::uint8_t known[] = {0x00, 0x03, 0x12, 0x1A, 0x1B, 0x1E,
                                              0x25, 0x28, 0x2A, 0x2F, 0x35, 0x5A,
                                              0x88, 0x8A, 0x91, 0x9E, 0xA0, vendor_opcode};
            bytes[0] = known[below(std::size(known))];
        }
        if (bytes.size() >= 10 && below(2) == 0) {
            tame_range(bytes);
        }
        if (bytes.size() == longest_cdb && bytes[0] == vendor_opcode && below(4) != 0) {
            tame(bytes);
        }
        return bytes;
    }

    std::vector<std::uint8_t> data() { return some(below(3) == 0 ? below(1024) : 512); }

    std::uint32_t allocation() { return static_cast<std::uint32_t>(below(1024)); }

private:
    // Likelier to be understood, so that the operations behind are reached.
    void tame(std::vector<std::uint8_t>& bytes) {
        bytes[1] = static_cast<std::uint8_t>(below(9));
        bytes[2] = static_cast<std::uint8_t>(below(3));
        bytes[3] = static_cast<std::uint8_t>(below(2));
        std::fill(bytes.begin() + 4, bytes.begin() + 9, std::uint8_t{0});
        bytes[12] = static_cast<std::uint8_t>(below(3));
        bytes[13] = static_cast<std::uint8_t>(below(2) * below(13));
        bytes[14] = bytes[15] = 0;
    }

    // A range of sectors at the volume's start or end.
    void tame_range(std::vector<std::uint8_t>& bytes) {
        const bool is_long = bytes.size() == longest_cdb;
        bytes[1] = static_cast<std::uint8_t>(below(2) * 8);
        put_be(&bytes[2], below(2) * (disk_sectors - 40) + below(50), is_long ? 8 : 4);
        put_be(&bytes[is_long ? 10 : 7], below(4), is_long ? 4 : 2);
    }

    std::size_t below(std::size_t end) { return engine_() % end; }

    std::vector<std::uint8_t> some(std::size_t count) {
        std::vector<std::uint8_t> bytes(count);
        for (std::uint8_t& byte : bytes) {
            byte = static_cast<std::uint8_t>(engine_());
        }
        return bytes;
    }

    std::mt19937 engine_{20240301}; // the same commands on every run
};

TEST(HostileCommands, AnyBytesGetAnAnswerWithinBounds) {
    const temporary_folder folder;
    bays disks;
    fault_stack faults(disks);
    chip target(disks, faults, "Kestrel Duo");
    disks.insert(0, std::make_shared<disk>(disk::create("a", build_identify(label_of(disk_sectors)),
                                                        folder.path() / "a.img")));
    target.power_on(moment{0});
    random_commands random;
    int understood = 0;
    for (int i = 0; i < rounds; ++i) {
        const std::uint32_t allocation = random.allocation();
        const scsi_reply reply = target.execute(random.cdb(), random.data(), allocation);
        ASSERT_LE(reply.data_in.size(), allocation);
        ASSERT_EQ(reply.sense.size(), reply.status == scsi_status::good ? 0 : sense_size);
        understood += reply.status == scsi_status::good ? 1 : 0;
    }
    EXPECT_GT(understood, rounds / 20);
    EXPECT_LT(understood, rounds);
    EXPECT_EQ(std::filesystem::file_size(folder.path() / "a.img"), disk_sectors * sector_size);
}

void insert_pair(bays& disks, const std::filesystem::path& folder) {
    for (const int port : {0, 1}) {
        const std::string name = port == 0 ? "a" : "b";
        disks.insert(port, std::make_shared<disk>(
                               disk::create(name, build_identify(label_of(disk_sectors, name)),
                                            folder / (name + ".img"))));
    }
}

sector_data record_of(bays& disks, int port) {
    sector_data sector{};
    EXPECT_TRUE(disks.at(port)->image().read(disk_sectors - 15, sector));
    return sector;
}

class HostileToArray : public testing::TestWithParam<scenario> {};

TEST_P(HostileToArray, CommandsOfTheVolumeLeaveItsRecordsAlone) {
    const temporary_folder folder;
    bays disks;
    fault_stack faults(disks);
    chip target(disks, faults, "Kestrel Duo");
    insert_pair(disks, folder.path());
    write_records(GetParam(), *disks.at(0), *disks.at(1));
    const std::array<sector_data, ports> before{record_of(disks, 0), record_of(disks, 1)};
    target.power_on(moment{0});
    random_commands random;
    int understood = 0;
    for (int i = 0; i < rounds / 4; ++i) {
        const std::vector<std::uint8_t> cdb = random.cdb();
        if (!cdb.empty() && cdb[0] == vendor_opcode) {
            continue;
        }
        const std::uint32_t allocation = random.allocation();
        const scsi_reply reply = target.execute(cdb, random.data(), allocation);
        ASSERT_LE(reply.data_in.size(), allocation);
        understood += reply.status == scsi_status::good ? 1 : 0;
    }
    EXPECT_GT(understood, rounds / 80);
    EXPECT_EQ(record_of(disks, 0), before[0]);
    EXPECT_EQ(record_of(disks, 1), before[1]);
}

INSTANTIATE_TEST_SUITE_P(Of, HostileToArray, testing::Values(scenario::raid0, scenario::raid1),
                         [](const auto& tested) { return std::string(name_of(tested.param)); });

// Every sector that the chip says there is can be read and written, as far as records go.
void expect_whole_volume(chip& target) {
    const std::uint64_t sectors = target.presented().sectors;
    ASSERT_LE(sectors, 2 * disk_sectors);
    std::vector<std::uint8_t> cdb(16);
    put_be(&cdb[10], sectors, 4);
    for (const std::uint8_t code : {op_read_16, op_write_16}) {
        cdb[0] = code;
        const std::vector<std::uint8_t> data(sectors * sector_size);
        const scsi_reply reply = target.execute(cdb, data, 0);
        ASSERT_EQ(reply.status == scsi_status::good, sectors != 0);
    }
}

TEST(HostileCommands, AnyRecordsOnTheDisksAreSafe) {
    const temporary_folder folder;
    std::mt19937_64 engine(7);
    bays disks;
    fault_stack faults(disks);
    chip target(disks, faults, "Kestrel Duo");
    insert_pair(disks, folder.path());
    for (int i = 0; i < 2000; ++i) {
        for (const int port : {0, 1}) {
            sector_data sector{};
            for (std::uint8_t& byte : sector) {
                byte = static_cast<std::uint8_t>(engine());
            }
            sector[0] = 'K';
            sector[1] = 'R';
            sector[2] = static_cast<std::uint8_t>(engine() % 6);
            ASSERT_TRUE(disks.at(port)->image().write(disk_sectors - 15, sector));
        }
        target.copy().set_rate(mirror_copy::unlimited, moment{0});
        target.power_on(moment{0});
        while (target.advance(moment{0})) {
        }
        if (const auto& progress = target.copy().progress()) {
            ASSERT_LE(progress->sectors, disk_sectors - 16);
            ASSERT_EQ(progress->done, progress->sectors);
        }
        if (i % 10 == 0) {
            expect_whole_volume(target);
        }
    }
}

} // namespace
} // namespace enclosure
