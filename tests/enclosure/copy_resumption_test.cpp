// Which copy goes on where it was, and which one is another.
#include "enclosure/scenario.h"
#include "enclosure/vendor_commands.h"

#include "tests/enclosure/builders.h"
#include "tests/enclosure/kept_copy.h"
#include "tests/enclosure/kept_desk.h"
#include "tests/enclosure/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace enclosure {
namespace {

using namespace std::chrono_literals;

constexpr std::uint64_t size = 10'000;
constexpr std::uint64_t area = size - 16;
constexpr std::uint64_t rate = 1'000; // sectors a second

// A mirror whose first disk is being copied to the second, over the lives of a service.
class CopyResumption : public testing::Test {
protected:
    CopyResumption() {
        kept_desk life(folder_.path());
        begin_a_copy(life, size, rate);
        life.on.add_disk("c", build_identify(label_of(size, "serial-c")));
    }

    static const chip& chip_of(const kept_desk& life) {
        return life.on.enclosure("box").bridge_chip();
    }

    static array_record record_of(kept_desk& life, const std::string& disk) {
        sector_data sector{};
        EXPECT_TRUE(life.on.disks().at(disk)->image().read(size - 15, sector));
        return read_record(sector).value_or(array_record{});
    }

    static void write_over_the_bus(kept_desk& life, int port, const array_record& record) {
        const sector_data sector = write_record(record);
        const auto reply =
            life.on.execute(*life.on.enclosure("box").handle(),
                            encode({vendor_action::write_sector, static_cast<std::uint8_t>(port),
                                    true, size - 15, sector_size}),
                            sector, 0);
        ASSERT_TRUE(reply);
        EXPECT_EQ(reply->status, scsi_status::good);
    }

    // As a host does before it restarts the chip; here the service ends before the restart.
    static void order_anew(kept_desk& life) {
        for (const int port : {0, 1}) {
            array_record record = record_of(life, port == 0 ? "a" : "b");
            record.stamp = stamp_of("20250505050505");
            write_over_the_bus(life, port, record);
        }
    }

    static void replace_second_by_another_member(kept_desk& life) {
        const array_record member = record_of(life, "b");
        life.on.pull("box", 1);
        ASSERT_TRUE(life.on.disks().at("c")->image().write(size - 15, write_record(member)));
        life.on.insert("box", 1, "c");
    }

    temporary_folder folder_;
};

TEST_F(CopyResumption, AFinishedCopyDoesNotStandForOneThatWasOrderedAfterIt) {
    {
        kept_desk life(folder_.path());
        life.run(1h);
        ASSERT_FALSE(chip_of(life).copy().running());
        order_anew(life);
        life.store.save_enclosure(life.on.enclosure("box"));
    }
    const kept_desk life(folder_.path());
    EXPECT_EQ(chip_of(life).copy().progress(), (copy_progress{0, area, 0}));
    EXPECT_TRUE(chip_of(life).copy().running());
}

TEST_F(CopyResumption, AHalfDoneCopyIsNotGoneOnWithForOneThatWasOrderedAfterIt) {
    {
        kept_desk life(folder_.path());
        life.run(3s);
        order_anew(life);
        life.store.save_enclosure(life.on.enclosure("box"));
    }
    const kept_desk life(folder_.path());
    EXPECT_EQ(chip_of(life).copy().progress(), (copy_progress{0, area, 0}));
}

TEST_F(CopyResumption, ARestartThatTheServiceDoesNotOutliveBeginsTheCopyAnew) {
    {
        kept_desk life(folder_.path());
        life.run(1h);
        life.on.warm_boot("box", 1h);
    }
    const kept_desk life(folder_.path());
    EXPECT_TRUE(chip_of(life).copy().running());
}

TEST_F(CopyResumption, AFinishedCopyWhoseMarksWereTakenAwayStaysReported) {
    {
        kept_desk life(folder_.path());
        life.run(1h);
        array_record source = record_of(life, "a");
        source.copy_source = false;
        write_over_the_bus(life, 0, source);
        life.store.save_enclosure(life.on.enclosure("box"));
    }
    const kept_desk life(folder_.path());
    EXPECT_EQ(chip_of(life).copy().progress(), (copy_progress{0, area, area}));
    EXPECT_EQ(chip_of(life).presented().state, volume_state::in_order);
}

TEST_F(CopyResumption, AFinishedCopyDoesNotStandForAnotherDiskInTheTargetsBay) {
    kept_desk life(folder_.path());
    life.run(1h);
    ASSERT_EQ(chip_of(life).presented().state, volume_state::in_order);
    replace_second_by_another_member(life);
    EXPECT_EQ(chip_of(life).presented().state, volume_state::copying);
    EXPECT_EQ(chip_of(life).copy().progress(), (copy_progress{0, area, 0}));
    EXPECT_FALSE(chip_of(life).copy().running());
}

TEST_F(CopyResumption, AHalfDoneCopyIsNotGoneOnWithOnAnotherDisk) {
    {
        kept_desk life(folder_.path());
        life.run(3s);
        replace_second_by_another_member(life);
    }
    const kept_desk life(folder_.path());
    EXPECT_EQ(chip_of(life).copy().progress(), (copy_progress{0, area, 0}));
}

TEST_F(CopyResumption, ADiskPutBackLeavesTheCopyWhereItStopped) {
    kept_desk life(folder_.path());
    life.run(3s);
    life.on.pull("box", 1);
    life.on.insert("box", 1, "b");
    EXPECT_EQ(chip_of(life).copy().progress(), (copy_progress{0, area, 3000}));
}

TEST_F(CopyResumption, ACopyThatAWriteHasThrownBackGoesOnFromThere) {
    {
        kept_desk life(folder_.path());
        life.run(3s);
        life.store.save_enclosure(life.on.enclosure("box"));
        fault_rule rule;
        rule.operation = io_kind::write;
        rule.port = 1;
        rule.first_lba = rule.last_lba = 100;
        life.on.add_fault("box", rule);
        const std::vector<std::uint8_t> write_10{0x2A, 0, 0, 0, 0, 100, 0, 0, 1, 0};
        const auto reply =
            life.on.execute(*life.on.enclosure("box").handle(), write_10, sector_number(7), 0);
        ASSERT_TRUE(reply);
        EXPECT_EQ(reply->status, scsi_status::good);
    }
    kept_desk life(folder_.path());
    EXPECT_EQ(chip_of(life).copy().progress(), (copy_progress{0, area, 100}));
    life.run(1h);
    sector_data copied{};
    ASSERT_TRUE(life.on.disks().at("b")->image().read(100, copied));
    EXPECT_EQ(copied, sector_number(7));
}

TEST_F(CopyResumption, AProgressIsNotKeptWithoutTheDiskThatHasIt) {
    {
        kept_desk life(folder_.path());
        life.run(3s);
        life.on.pull("box", 1);
    }
    std::ifstream file(folder_.path() / "enclosures/box.json");
    const std::string state((std::istreambuf_iterator<char>(file)), {});
    EXPECT_NE(state.find("\"copy\": null"), std::string::npos) << state;
}

TEST_F(CopyResumption, ADiskPutBackIsJudgedByItsNeighboursRecordAsItIsNow) {
    kept_desk life(folder_.path());
    life.on.unplug("box");
    life.on.arrange("box", scenario::raid1);
    life.on.plug("box", 0s);
    life.on.pull("box", 1);
    array_record alone = record_of(life, "a");
    alone.stamp = stamp_of("20250505050505");
    write_over_the_bus(life, 0, alone);
    life.on.insert("box", 1, "b");
    EXPECT_EQ(chip_of(life).presented().state, volume_state::diverged);
}

} // namespace
} // namespace enclosure
