// No array operation writes outside of the sectors that are its own, whatever size a disk claims.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "tests/support/array_operations.h"
#include "tests/support/change_fixture.h"
#include "tests/support/write_guard.h"

namespace {

using verdict = array_operation::verdict;

constexpr std::uint64_t true_size = 300; // sectors, of every disk here
constexpr std::uint64_t huge = std::numeric_limits<std::uint64_t>::max();

// A disk that claims to have `capacity` sectors and has 300, all of them filled.
memory_disk claiming(const std::string& model, std::uint64_t capacity) {
    identify_block block = identify_of(model, "SN", capacity);
    block.lba = false; // a capacity of 0 is one with 28 bits, or with none
    memory_disk disk(block);
    disk.size = true_size;
    for (std::uint64_t lba = 0; lba < true_size; ++lba) {
        disk.sectors[lba] = data_sector();
    }
    return disk;
}

class Bounds : public change_test {
protected:
    // Runs every operation on disks that claim these sizes, and looks at every sector afterwards.
    void expect_kept(std::uint64_t capacity0, std::uint64_t capacity1, bool firewire = false) {
        for (const array_operation& operation : every_array_operation()) {
            SCOPED_TRACE(operation.name + ", " + std::to_string(capacity0) + " and " +
                         std::to_string(capacity1) + " sectors");
            world().reset();
            krchip& chip =
                take_chip(claiming("DISK A", capacity0), claiming("DISK B", capacity1), firewire);
            operation.prepare(chip);
            const write_guard guard(library, device, {capacity0, capacity1});
            operation.run(chip);
            EXPECT_EQ(guard.writes() == 0, operation.decided_by == verdict::restart);
            expect_user_data(0, capacity0);
            expect_user_data(1, capacity1);
        }
    }

    void expect_user_data(int port, std::uint64_t capacity) {
        for (std::uint64_t lba = 64; lba < true_size; ++lba) {
            if (lba != capacity - 15) {
                ASSERT_EQ(library.sector(device, port, lba), data_sector()) << "LBA " << lba;
            }
        }
    }

    // Those that depend on their records must fail on disks that cannot hold one.
    void expect_refused(std::uint64_t capacity) {
        for (const array_operation& operation : every_array_operation()) {
            SCOPED_TRACE(operation.name + ", " + std::to_string(capacity) + " sectors");
            world().reset();
            krchip& chip = take_chip(claiming("DISK A", capacity), claiming("DISK B", capacity));
            operation.prepare(chip);
            const bool done = operation.run(chip);
            if (operation.decided_by == verdict::records) {
                EXPECT_FALSE(done);
                EXPECT_EQ(log.count("krWarmBoot"), 0U);
            }
            const std::string address = std::to_string(capacity - 15);
            for (const std::string& line : log.lines(from_library)) {
                if (line.find(" " + address + ",") != std::string::npos) {
                    EXPECT_TRUE(line.ends_with(" = 5")) << line;
                }
            }
        }
    }
};

} // namespace

TEST_F(Bounds, HoldOnOrdinaryDisks) {
    expect_kept(true_size, true_size);
    expect_kept(200, 300);
    expect_kept(true_size, true_size, true);
}

TEST_F(Bounds, HoldOnDisksThatAreTooSmallForARecord) {
    for (const std::uint64_t capacity : {0U, 1U, 14U}) {
        expect_kept(capacity, capacity);
        expect_kept(capacity, true_size);
        expect_kept(true_size, capacity);
        expect_kept(capacity, capacity, true);
    }
}

TEST_F(Bounds, HoldOnADiskWhoseRecordIsItsFirstSector) {
    expect_kept(15, 15);
}

TEST_F(Bounds, HoldOnADiskWhoseRecordLiesAmongTheWipedSectors) {
    expect_kept(78, 79);
}

TEST_F(Bounds, HoldOnDisksThatClaimTheLargestSize) {
    expect_kept(huge, huge);
    expect_kept(huge, true_size);
    expect_kept(true_size, huge, true);
}

TEST_F(Bounds, AreKeptByTheLibraryWhereADiskIsTooSmallForItsRecord) {
    for (const std::uint64_t capacity :
         {std::uint64_t{0}, std::uint64_t{1}, std::uint64_t{14}, huge}) {
        expect_refused(capacity);
    }
}

TEST_F(Bounds, AreKnownToTheGuard) {
    krchip& chip = take_blank_chip();
    const write_guard guard(library, device, {2014, 3000});
    const gate_scope work(j.gate);
    for (const long long lba : {64, 1998, 2000, 2985}) {
        EXPECT_NONFATAL_FAILURE(chip.execute_set_raid_info({}, lba, false),
                                "a sector of the user's");
    }
    EXPECT_NONFATAL_FAILURE(chip.execute_set_raid_info({}, 1999, true), "a sector of the user's");
    chip.device = 0x12;
    EXPECT_NONFATAL_FAILURE(chip.execute_set_raid_info({}, 0, false), "another bridge");
    chip.device = device;
    chip.execute_set_raid_info({}, 63, false);
    chip.execute_set_raid_info({}, 1999, false);
    chip.execute_set_raid_info({}, 2985, true);
    EXPECT_EQ(guard.writes(), 9U);
}
