#include "enclosure/numbers.h"
#include "enclosure/problem.h"

#include "tests/enclosure/builders.h"

#include <gtest/gtest.h>

#include <array>

namespace enclosure {
namespace {

using namespace std::chrono_literals;

constexpr std::uint64_t size_a = 20'000;
constexpr std::uint64_t size_b = 16'000;
constexpr std::uint64_t area = size_b - 16;

// Disk a of the mirror is to be copied to disk b; every sector of both differs.
class MirrorCopy : public testing::Test {
protected:
    MirrorCopy() {
        put_pair(bench_, size_a, size_b);
        bench_.arrange("box", scenario::rebuild);
        for (std::uint64_t lba = 0; lba < area; lba += 1) {
            if (lba < 3000 || lba > 9000) {
                bench_.write_image("a", lba, sector_number(lba));
            }
            bench_.write_image("b", lba, sector_number(lba + 77));
        }
    }

    // End and current LBA as the access library reports them.
    std::array<std::uint64_t, 2> status() {
        std::array<std::uint8_t, 12> record{};
        const std::uint32_t handle = bench_.handle_of("box");
        EXPECT_EQ(bench_.library().openConnection(handle), 0);
        EXPECT_EQ(bench_.library().krGetRebuildStatus(handle, record.data(), 12), 0);
        return {get_le(record.data(), 6), get_le(&record[6], 6)};
    }

    void expect_copied(std::uint64_t from, std::uint64_t to) {
        for (std::uint64_t lba = from; lba < to; ++lba) {
            ASSERT_EQ(bench_.read_image("b", lba), bench_.read_image("a", lba)) << lba;
        }
    }

    in_process_bench bench_;
};

TEST_F(MirrorCopy, UnlimitedItIsThereAtOnceByteForByte) {
    bench_.set_rate("box", mirror_copy::unlimited);
    const sector_data source_record = bench_.read_image("a", size_a - 15);
    const sector_data target_record = bench_.read_image("b", size_b - 15);
    bench_.plug("box");
    bench_.advance(0s);
    expect_copied(0, area);
    EXPECT_EQ(bench_.read_image("a", size_a - 15), source_record);
    EXPECT_EQ(bench_.read_image("b", size_b - 15), target_record);
    EXPECT_EQ(status(), (std::array{area - 1, area - 1}));
    EXPECT_EQ(bench_.volume_of("box").state, volume_state::in_order);
}

TEST_F(MirrorCopy, TheSourceIsNotWritten) {
    bench_.set_rate("box", mirror_copy::unlimited);
    bench_.plug("box");
    for (std::uint64_t lba = 0; lba < area; ++lba) {
        const bool written = lba < 3000 || lba > 9000;
        ASSERT_EQ(bench_.read_image("a", lba), written ? sector_number(lba) : sector_data{}) << lba;
    }
}

TEST_F(MirrorCopy, ItKeepsToItsRate) {
    bench_.set_rate("box", 1'000 * sector_size);
    bench_.plug("box");
    EXPECT_EQ(status(), (std::array<std::uint64_t, 2>{area - 1, 0}));
    bench_.advance(2s);
    EXPECT_EQ(status(), (std::array<std::uint64_t, 2>{area - 1, 1999}));
    expect_copied(0, 2000);
    EXPECT_EQ(bench_.read_image("b", 2000), sector_number(2077));
    bench_.advance(500ms);
    EXPECT_EQ(status()[1], 2499U);
    bench_.advance(1h);
    EXPECT_EQ(status()[1], area - 1);
}

TEST_F(MirrorCopy, ANewRateHoldsFromThenOn) {
    bench_.set_rate("box", 1'000 * sector_size);
    bench_.plug("box");
    bench_.advance(1s);
    bench_.set_rate("box", 10 * sector_size);
    bench_.advance(1s);
    EXPECT_EQ(status()[1], 1009U);
}

TEST_F(MirrorCopy, EmptyRangesOfTheSourceAreEmptyOnTheTarget) {
    bench_.set_rate("box", mirror_copy::unlimited);
    bench_.plug("box");
    EXPECT_EQ(bench_.read_image("b", 5000), sector_data{});
}

TEST_F(MirrorCopy, APulledDiskStopsItWhereItIs) {
    bench_.set_rate("box", 1'000 * sector_size);
    bench_.plug("box");
    bench_.advance(2s);
    bench_.pull("box", 1);
    bench_.advance(1h);
    EXPECT_EQ(status(), (std::array<std::uint64_t, 2>{area - 1, 1999}));
    bench_.insert("box", 1, "b");
    bench_.advance(1h);
    EXPECT_EQ(status()[1], 1999U);
}

TEST_F(MirrorCopy, TheStatusStaysAtTheEndUntilTheNextStart) {
    bench_.set_rate("box", mirror_copy::unlimited);
    bench_.plug("box");
    sector_data record = bench_.read_image("a", size_a - 15);
    record[4] = 0; // the host takes the mark away
    bench_.write_image("a", size_a - 15, record);
    bench_.advance(1h);
    EXPECT_EQ(status(), (std::array{area - 1, area - 1}));
    bench_.warm_boot("box");
    bench_.advance(1s);
    EXPECT_EQ(status(), (std::array<std::uint64_t, 2>{0, 0}));
}

TEST_F(MirrorCopy, ARestartBeginsItAnewWhileTheMarkIsThere) {
    bench_.set_rate("box", 1'000 * sector_size);
    bench_.plug("box");
    bench_.advance(2s);
    bench_.warm_boot("box");
    bench_.advance(1s);
    EXPECT_EQ(status(), (std::array<std::uint64_t, 2>{area - 1, 0}));
}

TEST_F(MirrorCopy, APassingFaultOnlyHoldsItUp) {
    fault_rule rule;
    rule.operation = io_kind::write;
    rule.port = 1;
    rule.first_lba = rule.last_lba = 1500;
    bench_.set_rate("box", 1'000 * sector_size);
    bench_.plug("box");
    bench_.add_fault("box", rule);
    bench_.advance(5s);
    EXPECT_LT(status()[1], 1500U);
    bench_.clear_faults("box");
    bench_.advance(1h);
    EXPECT_EQ(status()[1], area - 1);
    expect_copied(0, area);
}

} // namespace
} // namespace enclosure
