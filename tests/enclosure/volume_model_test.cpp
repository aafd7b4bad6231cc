// Random work on a volume does what it does to a plain row of sectors.
#include "tests/enclosure/volume_host.h"

#include <array>
#include <random>

namespace enclosure {
namespace {

constexpr std::uint64_t size_a = 40'000;
constexpr std::uint64_t size_b = 36'789;
constexpr std::uint64_t longest = 400; // sectors of one command

// A volume in a state, and what it must hold.
class VolumeModel : public testing::TestWithParam<scenario> {
protected:
    VolumeModel() {
        host_.start(GetParam(), size_a, size_b);
        expected_.resize(host_.capacity() * sector_size);
    }

    std::uint64_t capacity() const { return expected_.size() / sector_size; }

    std::uint64_t below(std::uint64_t end) { return engine_() % end; }

    // Likelier where something ends or begins: chunks, rows, the seam of a span, the volume, and
    // where the copy stands.
    std::uint64_t some_lba() {
        const std::array<std::uint64_t, 5> edges{0, below(capacity() / 128 + 1) * 128, size_a - 16,
                                                 capacity() - 1, host_.copy().copied()};
        const std::uint64_t lba =
            below(2) == 0 ? below(capacity()) : edges[below(edges.size())] + below(40);
        return lba < 20 ? lba : std::min(lba - 20, capacity() - 1);
    }

    void write_some() {
        const std::uint64_t lba = some_lba();
        const std::uint64_t count = below(std::min(longest, capacity() - lba)) + 1;
        const bytes data =
            below(8) == 0 ? bytes(count * sector_size) : sectors_from(lba, count, below(1000));
        host_.expect_written(lba, data);
        std::copy(data.begin(), data.end(),
                  expected_.begin() + static_cast<std::ptrdiff_t>(lba * sector_size));
    }

    void read_some() {
        const std::uint64_t lba = some_lba();
        const std::uint64_t count = below(std::min(longest, capacity() - lba)) + 1;
        host_.expect_reads(lba, expected_of(lba, count));
    }

    bytes expected_of(std::uint64_t lba, std::uint64_t count) const {
        const auto from = expected_.begin() + static_cast<std::ptrdiff_t>(lba * sector_size);
        return {from, from + static_cast<std::ptrdiff_t>(count * sector_size)};
    }

    void expect_all() {
        for (std::uint64_t lba = 0; lba < capacity(); lba += 4096) {
            const std::uint64_t count = std::min<std::uint64_t>(4096, capacity() - lba);
            host_.expect_reads(lba, expected_of(lba, count));
        }
    }

    // The members' ends, which no volume of an array reaches.
    std::array<bytes, ports> tails() {
        return {host_.on_disk(0, size_a - 16, 16), host_.on_disk(1, size_b - 16, 16)};
    }

    volume_host host_;
    bytes expected_;
    std::mt19937_64 engine_{4711}; // the same work in every run
};

TEST_P(VolumeModel, HoldsWhatWasWrittenLast) {
    const std::array<bytes, ports> before = tails();
    for (int i = 0; i < 1500 && !HasFailure(); ++i) {
        write_some();
        read_some();
    }
    expect_all();
    if (GetParam() != scenario::unconfigured) {
        EXPECT_EQ(tails(), before);
    }
}

INSTANTIATE_TEST_SUITE_P(Of, VolumeModel,
                         testing::Values(scenario::unconfigured, scenario::raid0, scenario::raid1,
                                         scenario::span, scenario::diverged, scenario::rebuild),
                         [](const auto& tested) { return std::string(name_of(tested.param)); });

class VolumeInterleaved : public VolumeModel {
protected:
    // The source has content to copy, the target another.
    VolumeInterleaved() {
        expected_ = sectors_from(0, capacity());
        host_.put_on_disk(0, 0, expected_);
        host_.put_on_disk(1, 0, sectors_from(0, capacity(), 77));
    }
};

TEST_P(VolumeInterleaved, WritesAndPiecesOfTheCopyEndInTwoLikeMembers) {
    while (host_.copy().running() && !HasFailure()) {
        host_.copy_piece(below(300) + 1);
        write_some();
        read_some();
    }
    EXPECT_EQ(host_.state(), volume_state::in_order);
    EXPECT_TRUE(host_.on_disk(0, 0, capacity()) == expected_);
    EXPECT_TRUE(host_.on_disk(1, 0, capacity()) == expected_);
}

// Faults that pass: the copy is held up and thrown back, and comes to the same end.
TEST_P(VolumeInterleaved, PassingFaultsOfTheTargetChangeNothingInTheEnd) {
    for (int i = 0; i < 300 && host_.copy().unfinished() && !HasFailure(); ++i) {
        const std::uint64_t bad = some_lba();
        host_.add_fault(fault_kind::fail, io_kind::write, 1, bad, bad + below(50));
        write_some();
        host_.copy_piece(below(300) + 1);
        host_.clear_faults();
        read_some();
    }
    host_.finish_copy();
    EXPECT_TRUE(host_.on_disk(0, 0, capacity()) == expected_);
    EXPECT_TRUE(host_.on_disk(1, 0, capacity()) == expected_);
}

INSTANTIATE_TEST_SUITE_P(With, VolumeInterleaved, testing::Values(scenario::rebuild),
                         [](const auto&) { return std::string("ACopy"); });

} // namespace
} // namespace enclosure
