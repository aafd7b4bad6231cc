// A host changes the array by what it writes, and the chip acts on it after a restart.
#include "tests/enclosure/array_host.h"

#include <gtest/gtest.h>

namespace enclosure {
namespace {

using namespace std::chrono_literals;

constexpr std::uint64_t size_a = 200'000;
constexpr std::uint64_t size_b = 150'000;
constexpr std::uint64_t mirrored = size_b - 16;

class ArrayChange : public testing::Test {
protected:
    ArrayChange() {
        put_pair(bench_, size_a, size_b);
        bench_.plug("box");
    }

    in_process_bench bench_;
};

struct created {
    const char* name;
    array_kind kind;
    std::uint64_t sectors;
};

class CreatedArray : public ArrayChange, public testing::WithParamInterface<created> {};

TEST_P(CreatedArray, IsPresentedAfterTheRestartAndNotBefore) {
    array_host host(bench_);
    host.write_records(GetParam().kind, GetParam().sectors);
    EXPECT_EQ(bench_.volume_of("box"), (volume{array_kind::none, volume_state::plain, size_a}));
    host.commit();
    EXPECT_EQ(bench_.volume_of("box"),
              (volume{GetParam().kind, volume_state::in_order, GetParam().sectors}));
    EXPECT_EQ(host.status(), (std::array<std::uint64_t, 2>{0, 0}));
}

INSTANTIATE_TEST_SUITE_P(All, CreatedArray,
                         testing::Values(created{"Stripe", array_kind::stripe, 2 * size_b - 32},
                                         created{"Mirror", array_kind::mirror, mirrored},
                                         created{"Span", array_kind::span,
                                                 size_a + size_b - 65568}),
                         [](const auto& chosen) { return std::string(chosen.param.name); });

TEST_F(ArrayChange, ErasedRecordsLeavePlainDisks) {
    array_host host(bench_);
    host.write_records(array_kind::mirror, mirrored);
    host.commit();
    host.erase_records();
    host.commit();
    EXPECT_EQ(bench_.volume_of("box"), (volume{array_kind::none, volume_state::plain, size_a}));
}

TEST_F(ArrayChange, AnArrayOfNoSectorsIsNoVolume) {
    array_host host(bench_);
    for (const array_kind kind : {array_kind::stripe, array_kind::mirror, array_kind::span}) {
        host.write_records(kind, 0);
        host.commit();
        EXPECT_EQ(bench_.volume_of("box"), (volume{kind, volume_state::broken, 0}));
    }
}

TEST_F(ArrayChange, NothingWorksOnTheHandleOfBeforeTheRestart) {
    array_host host(bench_);
    const std::uint32_t former = host.handle();
    host.commit();
    ASSERT_NE(host.handle(), former);
    sector_data data{};
    auto& library = bench_.library();
    EXPECT_NE(library.krGetRaidInfo(former, data.data(), 512, 0, 0, 1), 0);
    EXPECT_NE(library.krSetRaidInfo(former, data.data(), 512, 0, 0, 1), 0);
    EXPECT_NE(library.krGetRaidInfoFW(former, data.data(), 512, 0, 0), 0);
    EXPECT_NE(library.krSetRaidInfoFW(former, data.data(), 512, 0, 0), 0);
    EXPECT_NE(library.krGetRebuildStatus(former, data.data(), 12), 0);
    EXPECT_LT(library.krGetDiskIdentify(former, data.data(), 512, 0), 0);
    EXPECT_LT(library.krGetRegister(former, data.data(), 512, 4, 0x7095), 0);
    EXPECT_NE(library.krFlushHDDCache(former, 0), 0);
    EXPECT_NE(library.krWarmBoot(former), 0);
    EXPECT_NE(library.openConnection(former), 0);
    EXPECT_EQ(bench_.handle_of("box"), host.handle());
}

TEST_F(ArrayChange, APowerCutTakesUnflushedRecordsBack) {
    array_host host(bench_);
    bench_.write_image("a", 0, sector_number(1));
    host.write(0, 0, {});
    host.write_records(array_kind::mirror, mirrored);
    bench_.power_cut("box");
    EXPECT_EQ(bench_.handle_of("box"), 0U);
    bench_.advance(1s);
    host.reopen();
    EXPECT_EQ(bench_.volume_of("box").state, volume_state::plain);
    EXPECT_EQ(host.read(0, 0), sector_number(1));
    EXPECT_EQ(host.read(0, size_a - 15), sector_data{});
}

TEST_F(ArrayChange, FlushedRecordsOutliveAPowerCut) {
    array_host host(bench_);
    host.write_records(array_kind::mirror, mirrored);
    host.flush(0);
    host.flush(1);
    bench_.power_cut("box");
    bench_.advance(1s);
    EXPECT_EQ(bench_.volume_of("box"),
              (volume{array_kind::mirror, volume_state::in_order, mirrored}));
}

TEST_F(ArrayChange, APowerCutBetweenTheFlushesLeavesAMirrorWithOneMember) {
    array_host host(bench_);
    host.write_records(array_kind::mirror, mirrored);
    host.flush(0);
    bench_.power_cut("box");
    bench_.advance(1s);
    EXPECT_EQ(bench_.volume_of("box"),
              (volume{array_kind::mirror, volume_state::degraded, mirrored}));
}

TEST_F(ArrayChange, WritesThatOverlapAreTakenBackInTheirOrder) {
    array_host host(bench_);
    bench_.write_image("b", 7, sector_number(1));
    host.write(1, 7, sector_number(2));
    host.write(1, 7, sector_number(3));
    bench_.power_cut("box");
    EXPECT_EQ(bench_.read_image("b", 7), sector_number(1));
}

TEST_F(ArrayChange, WhatADiskHasNoRoomForIsLasting) {
    array_host host(bench_);
    for (std::uint64_t lba = 0; lba <= unflushed_writes::room; ++lba) {
        host.write(0, lba, sector_number(lba));
    }
    bench_.power_cut("box");
    EXPECT_EQ(bench_.read_image("a", 0), sector_number(0));
    EXPECT_EQ(bench_.read_image("a", 1), sector_data{});
    EXPECT_EQ(bench_.read_image("a", unflushed_writes::room), sector_data{});
}

TEST_F(ArrayChange, ALostFlushLosesWhatWasToBeKept) {
    fault_rule rule;
    rule.kind = fault_kind::drop;
    rule.operation = io_kind::flush;
    bench_.add_fault("box", rule);
    array_host host(bench_);
    host.write(0, 7, sector_number(7));
    host.flush(0);
    bench_.power_cut("box");
    EXPECT_EQ(bench_.read_image("a", 7), sector_data{});
}

TEST_F(ArrayChange, PullingAndUnpluggingLoseNothing) {
    array_host host(bench_);
    host.write(0, 7, sector_number(7));
    host.write(1, 7, sector_number(7));
    bench_.pull("box", 0);
    bench_.insert("box", 0, "a");
    bench_.unplug("box");
    bench_.plug("box");
    bench_.power_cut("box");
    EXPECT_EQ(bench_.read_image("a", 7), sector_number(7));
    EXPECT_EQ(bench_.read_image("b", 7), sector_number(7));
}

TEST_F(ArrayChange, PowerCanBeCutDuringARestart) {
    array_host host(bench_);
    host.write(0, 7, sector_number(7));
    bench_.warm_boot("box");
    bench_.advance(500ms);
    bench_.power_cut("box");
    bench_.advance(500ms);
    EXPECT_EQ(bench_.handle_of("box"), 0U);
    bench_.advance(500ms);
    EXPECT_GT(bench_.handle_of("box"), host.handle());
    EXPECT_EQ(bench_.read_image("a", 7), sector_data{});
}

} // namespace
} // namespace enclosure
