#include "enclosure/fault_stack.h"
#include "enclosure/problem.h"
#include "enclosure/transport.h"

#include "device/libkrraid.h"

#include "tests/enclosure/builders.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace enclosure {
namespace {

using namespace std::chrono_literals;

constexpr std::uint64_t sectors = 1000;

class Fault : public testing::Test {
protected:
    Fault() {
        put_pair(bench_, sectors, sectors);
        handle_ = bench_.plug("box");
        EXPECT_EQ(bench_.library().openConnection(handle_), 0);
    }

    std::int32_t read(std::uint64_t lba, int port, sector_data& data) {
        return bench_.library().krGetRaidInfoFW(handle_, data.data(), 512, lba, port);
    }

    std::int32_t write(std::uint64_t lba, int port, const sector_data& data) {
        return bench_.library().krSetRaidInfoFW(handle_, data.data(), 512, lba, port);
    }

    void add(fault_kind kind, io_kind operation, std::uint32_t nth = 0) {
        fault_rule rule;
        rule.kind = kind;
        rule.operation = operation;
        rule.port = 0;
        rule.first_lba = rule.last_lba = 10;
        rule.nth = nth;
        rule.byte = 3;
        bench_.add_fault("box", rule);
    }

    in_process_bench bench_;
    std::uint32_t handle_ = 0;
};

TEST_F(Fault, AFailingReadFailsThereAndNowhereElse) {
    add(fault_kind::fail, io_kind::read);
    sector_data data{};
    EXPECT_EQ(read(10, 0, data), KRRAID_FAILED);
    EXPECT_EQ(read(10, 1, data), 0);
    EXPECT_EQ(read(9, 0, data), 0);
    EXPECT_EQ(read(11, 0, data), 0);
    EXPECT_EQ(write(10, 0, data), 0);
}

TEST_F(Fault, TheSecondTimeIsTheSecondTimeOnly) {
    add(fault_kind::fail, io_kind::write, 2);
    EXPECT_EQ(write(10, 0, {}), 0);
    EXPECT_EQ(write(10, 0, {}), -1);
    EXPECT_EQ(write(10, 0, {}), 0);
}

TEST_F(Fault, AFlippedByteOfAReadIsWholeOnTheDisk) {
    add(fault_kind::flip, io_kind::read);
    ASSERT_EQ(write(10, 0, sector_number(1)), 0);
    sector_data expected = sector_number(1);
    expected[3] = static_cast<std::uint8_t>(~expected[3]);
    sector_data data{};
    ASSERT_EQ(read(10, 0, data), 0);
    EXPECT_EQ(data, expected);
    EXPECT_EQ(bench_.read_image("a", 10), sector_number(1));
}

TEST_F(Fault, AFlippedByteOfAWriteIsOnTheDisk) {
    add(fault_kind::flip, io_kind::write);
    ASSERT_EQ(write(10, 0, sector_number(1)), 0);
    sector_data expected = sector_number(1);
    expected[3] = static_cast<std::uint8_t>(~expected[3]);
    EXPECT_EQ(bench_.read_image("a", 10), expected);
}

TEST_F(Fault, ADroppedWriteIsReportedDone) {
    bench_.write_image("a", 10, sector_number(1));
    add(fault_kind::drop, io_kind::write);
    EXPECT_EQ(write(10, 0, sector_number(2)), 0);
    EXPECT_EQ(bench_.read_image("a", 10), sector_number(1));
}

TEST_F(Fault, ADelayWithinTheLimitIsAnAnswer) {
    fault_rule rule;
    rule.kind = fault_kind::delay;
    rule.delay = 4s;
    bench_.add_fault("box", rule);
    sector_data data{};
    EXPECT_EQ(read(10, 0, data), 0);
}

TEST_F(Fault, ADelayBeyondTheLimitIsNone) {
    fault_rule rule;
    rule.kind = fault_kind::delay;
    rule.delay = 6s;
    bench_.add_fault("box", rule);
    sector_data data{};
    EXPECT_EQ(read(10, 0, data), KRRAID_NO_ANSWER);
    bench_.clear_faults("box");
    EXPECT_EQ(read(10, 0, data), 0);
}

TEST_F(Fault, ATimeOutIsNoAnswerAndTheWriteIsNotMade) {
    bench_.write_image("a", 10, sector_number(1));
    add(fault_kind::time_out, io_kind::write);
    EXPECT_EQ(write(10, 0, sector_number(2)), KRRAID_NO_ANSWER);
    EXPECT_EQ(bench_.read_image("a", 10), sector_number(1));
    EXPECT_EQ(write(11, 0, sector_number(2)), 0);
    sector_data data{};
    EXPECT_EQ(read(10, 0, data), 0);
}

TEST_F(Fault, ATimeOutOfTheChipsOwnWorkIsNobodysAnswer) {
    fault_rule rule;
    rule.kind = fault_kind::time_out;
    rule.operation = io_kind::identify;
    rule.nth = 1;
    bench_.add_fault("box", rule);
    bench_.pull("box", 1); // the chip looks at what is left
    sector_data data{};
    EXPECT_EQ(read(10, 0, data), 0);
}

TEST_F(Fault, ATornWriteHasItsFirstBytesOnly) {
    bench_.write_image("a", 10, sector_number(1));
    add(fault_kind::tear, io_kind::write);
    EXPECT_EQ(write(10, 0, sector_number(2)), 0);
    sector_data expected = sector_number(1);
    const sector_data fresh = sector_number(2);
    std::copy_n(fresh.begin(), 3, expected.begin());
    EXPECT_EQ(bench_.read_image("a", 10), expected);
}

TEST_F(Fault, ADiskThatDoesNotIdentifyIsNotSeenEither) {
    fault_rule rule;
    rule.operation = io_kind::identify;
    rule.port = 1;
    bench_.add_fault("box", rule);
    sector_data data{};
    EXPECT_LT(bench_.library().krGetDiskIdentify(handle_, data.data(), 512, 1), 0);
    data[0] = 9;
    ASSERT_EQ(bench_.library().krGetRegister(handle_, data.data(), 512, 4, presence_register_1), 0);
    EXPECT_EQ(data[0], 0);
}

TEST_F(Fault, FaultsStack) {
    add(fault_kind::fail, io_kind::read, 1);
    add(fault_kind::flip, io_kind::read);
    sector_data data{};
    EXPECT_EQ(read(10, 0, data), KRRAID_FAILED);
    EXPECT_EQ(read(10, 0, data), 0);
    EXPECT_EQ(data[3], 0xFF);
}

TEST_F(Fault, AFailedFlushIsReported) {
    fault_rule rule;
    rule.operation = io_kind::flush;
    bench_.add_fault("box", rule);
    EXPECT_EQ(bench_.library().krFlushHDDCache(handle_, 0), -1);
    bench_.clear_faults("box");
    EXPECT_EQ(bench_.library().krFlushHDDCache(handle_, 0), 0);
}

TEST_F(Fault, RulesWithoutSenseAreRefused) {
    fault_rule rule;
    rule.kind = fault_kind::drop;
    EXPECT_THROW(bench_.add_fault("box", rule), problem);
    rule.kind = fault_kind::tear;
    EXPECT_THROW(bench_.add_fault("box", rule), problem);
    rule = {};
    rule.first_lba = 2;
    rule.last_lba = 1;
    EXPECT_THROW(bench_.add_fault("box", rule), problem);
    rule = {};
    rule.byte = 512;
    EXPECT_THROW(bench_.add_fault("box", rule), problem);
    rule = {};
    rule.port = 2;
    EXPECT_THROW(bench_.add_fault("box", rule), problem);
    rule = {};
    rule.delay = 2h;
    EXPECT_THROW(bench_.add_fault("box", rule), problem);
}

TEST_F(Fault, ThereIsAnEndToThem) {
    for (int i = 0; i < 64; ++i) {
        bench_.add_fault("box", {});
    }
    EXPECT_THROW(bench_.add_fault("box", {}), problem);
}

// What a disk was asked to write.
class written_down final : public disk_io {
public:
    bool perform(const io_request& request) override {
        if (request.kind == io_kind::read) {
            std::fill(request.data.begin(), request.data.end(), std::uint8_t{0xEE});
        } else {
            what.push_back({request.lba, {request.data.begin(), request.data.end()}});
        }
        return true;
    }

    std::vector<std::pair<std::uint64_t, std::vector<std::uint8_t>>> what;
};

fault_rule torn_write(std::uint32_t byte, std::uint64_t first_lba = 0,
                      std::uint64_t last_lba = fault_rule{}.last_lba) {
    fault_rule rule;
    rule.kind = fault_kind::tear;
    rule.operation = io_kind::write;
    rule.first_lba = first_lba;
    rule.last_lba = last_lba;
    rule.byte = byte;
    return rule;
}

TEST(TornWrite, OfManySectorsEndsInTheFirstOneStruck) {
    written_down disk;
    fault_stack faults(disk);
    faults.add(torn_write(511, 102, 103));
    std::vector<std::uint8_t> data(5 * sector_size, 7);
    EXPECT_TRUE(faults.perform({io_kind::write, 0, 100, 5, data}));
    ASSERT_EQ(disk.what.size(), 2U);
    EXPECT_EQ(disk.what[0].first, 100U);
    EXPECT_EQ(disk.what[0].second, std::vector<std::uint8_t>(2 * sector_size, 7));
    std::vector<std::uint8_t> torn(sector_size, 7);
    torn[511] = 0xEE;
    EXPECT_EQ(disk.what[1].first, 102U);
    EXPECT_EQ(disk.what[1].second, torn);
}

TEST(TornWrite, OfZerosWithoutDataTearsAlike) {
    written_down disk;
    fault_stack faults(disk);
    faults.add(torn_write(500));
    EXPECT_TRUE(faults.perform({io_kind::write, 0, 100, 5, {}}));
    ASSERT_EQ(disk.what.size(), 1U);
    std::vector<std::uint8_t> torn(sector_size, 0xEE);
    std::fill_n(torn.begin(), 500, std::uint8_t{0});
    EXPECT_EQ(disk.what[0].second, torn);
}

TEST(FaultRule, AMultiSectorRequestIsHitWhereItOverlaps) {
    fault_rule rule;
    rule.first_lba = rule.last_lba = 100;
    EXPECT_FALSE(rule.fits({io_kind::read, 0, 90, 10, {}}));
    EXPECT_TRUE(rule.fits({io_kind::read, 0, 90, 11, {}}));
    EXPECT_TRUE(rule.fits({io_kind::read, 0, 100, 1, {}}));
    EXPECT_FALSE(rule.fits({io_kind::read, 0, 101, 50, {}}));
}

} // namespace
} // namespace enclosure
