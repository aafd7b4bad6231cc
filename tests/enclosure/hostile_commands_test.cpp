// Any command bytes are safe and change nothing but what they are for.
#include "enclosure/chip.h"
#include "enclosure/scenario.h"

#include "tests/enclosure/builders.h"
#include "tests/enclosure/temporary_folder.h"

#include <gtest/gtest.h>

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
            constexpr std::uint8_t known[] = {0x00, 0x03, 0x12, 0x25, 0x35, 0x9E, vendor_opcode};
            bytes[0] = known[below(std::size(known))];
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

TEST(HostileCommands, AnyRecordsOnTheDisksAreSafe) {
    const temporary_folder folder;
    std::mt19937_64 engine(7);
    bays disks;
    fault_stack faults(disks);
    chip target(disks, faults, "Kestrel Duo");
    for (const int port : {0, 1}) {
        const std::string name = port == 0 ? "a" : "b";
        disks.insert(port, std::make_shared<disk>(
                               disk::create(name, build_identify(label_of(disk_sectors, name)),
                                            folder.path() / (name + ".img"))));
    }
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
    }
}

} // namespace
} // namespace enclosure
