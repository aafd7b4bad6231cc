// Where each sector of a volume lies on the disks.
#include "enclosure/volume_layout.h"

#include "tests/enclosure/volume_host.h"

#include <array>
#include <vector>

namespace enclosure {
namespace {

constexpr std::uint64_t whole_chunks = 128 * 10 + 16; // sectors of a disk
constexpr std::uint64_t terabyte = 1'953'525'168;     // sectors

// A disk in an array, as member `port` of it.
port_view member(array_kind kind, int port, std::uint64_t disk_sectors,
                 std::uint64_t array_sectors) {
    port_view view;
    view.present = true;
    view.sectors = disk_sectors;
    view.identity.serial[0] = static_cast<std::uint8_t>('a' + port);
    view.record = array_record{};
    view.record->kind = kind;
    view.record->member = static_cast<std::uint8_t>(port);
    view.record->sectors = array_sectors;
    view.record->partner.serial[0] = static_cast<std::uint8_t>('b' - port);
    view.record->stamp = stamp_of("20240301093000");
    return view;
}

port_views pair_in(array_kind kind, std::uint64_t first, std::uint64_t second,
                   std::uint64_t array_sectors) {
    return {member(kind, 0, first, array_sectors), member(kind, 1, second, array_sectors)};
}

volume_layout laid_out(const port_views& views) {
    return layout_of(views, decide_volume(views));
}

volume_layout stripe_on(std::uint64_t first, std::uint64_t second) {
    return laid_out(pair_in(array_kind::stripe, first, second, 2 * std::min(first, second) - 32));
}

volume_layout span_on(std::uint64_t first, std::uint64_t second) {
    return laid_out(pair_in(array_kind::span, first, second, first + second - 65568));
}

void expect_piece(const volume_layout& layout, std::uint64_t lba, int port, std::uint64_t at,
                  std::uint64_t count) {
    const layout_piece piece = piece_at(layout, lba, layout.sectors - lba);
    EXPECT_EQ(piece.port, port) << lba;
    EXPECT_EQ(piece.lba, at) << lba;
    EXPECT_EQ(piece.count, count) << lba;
}

TEST(VolumeLayout, ChunksOfAStripeTakeTurnsFromPort0On) {
    const volume_layout layout = stripe_on(whole_chunks, whole_chunks);
    ASSERT_EQ(layout.sectors, 2560U);
    expect_piece(layout, 0, 0, 0, 128);
    expect_piece(layout, 127, 0, 127, 1);
    expect_piece(layout, 128, 1, 0, 128);
    expect_piece(layout, 255, 1, 127, 1);
    expect_piece(layout, 256, 0, 128, 128);
    expect_piece(layout, 300, 0, 172, 84);
    expect_piece(layout, 2431, 0, 1279, 1);
    expect_piece(layout, 2432, 1, 1152, 128);
    expect_piece(layout, 2559, 1, 1279, 1);
}

TEST(VolumeLayout, TheLastRowOfAStripeIsNarrow) {
    const volume_layout layout = stripe_on(whole_chunks + 5, whole_chunks + 900);
    ASSERT_EQ(layout.sectors, 2570U);
    expect_piece(layout, 2559, 1, 1279, 1);
    expect_piece(layout, 2560, 0, 1280, 5);
    expect_piece(layout, 2564, 0, 1284, 1);
    expect_piece(layout, 2565, 1, 1280, 5);
    expect_piece(layout, 2569, 1, 1284, 1);
}

TEST(VolumeLayout, AStripeSmallerThanARowIsSplitInHalves) {
    const volume_layout layout = stripe_on(17, 17);
    ASSERT_EQ(layout.sectors, 2U);
    expect_piece(layout, 0, 0, 0, 1);
    expect_piece(layout, 1, 1, 0, 1);
}

TEST(VolumeLayout, AStripeBeyond32BitsGoesOnAlike) {
    const volume_layout layout = stripe_on(4 * terabyte, 4 * terabyte);
    const std::uint64_t far = 256 * (1ULL << 24); // 2^32
    expect_piece(layout, far - 1, 1, far / 2 - 1, 1);
    expect_piece(layout, far, 0, far / 2, 128);
    expect_piece(layout, far + 129, 1, far / 2 + 1, 127);
}

TEST(VolumeLayout, ASpanFillsTheFirstDiskBeforeTheSecond) {
    const volume_layout layout = span_on(400'000, 300'000);
    ASSERT_EQ(layout.sectors, 634'432U);
    expect_piece(layout, 0, 0, 0, 399'984);
    expect_piece(layout, 399'983, 0, 399'983, 1);
    expect_piece(layout, 399'984, 1, 0, 234'448);
    expect_piece(layout, 634'431, 1, 234'447, 1);
}

TEST(VolumeLayout, ASpanBeyond32BitsGoesOnAlike) {
    const volume_layout layout = span_on(3 * terabyte, 2 * terabyte);
    const std::uint64_t seam = 3 * terabyte - 16;
    ASSERT_GT(seam, 1ULL << 32);
    expect_piece(layout, 1ULL << 32, 0, 1ULL << 32, seam - (1ULL << 32));
    expect_piece(layout, seam - 1, 0, seam - 1, 1);
    expect_piece(layout, seam, 1, 0, layout.sectors - seam);
}

TEST(VolumeLayout, ASpanOfASmallDiskMayLieOnTheOtherAlone) {
    const volume_layout layout = span_on(400'000, 40'000);
    ASSERT_EQ(layout.sectors, 374'432U);
    expect_piece(layout, 0, 0, 0, 374'432);
}

TEST(VolumeLayout, ExchangedBaysChangeNothing) {
    port_views views = pair_in(array_kind::stripe, whole_chunks, whole_chunks, 2560);
    std::swap(views[0], views[1]);
    expect_piece(laid_out(views), 0, 1, 0, 128);
    expect_piece(laid_out(views), 128, 0, 0, 128);
    views = pair_in(array_kind::span, 400'000, 300'000, 634'432);
    std::swap(views[0], views[1]);
    expect_piece(laid_out(views), 399'983, 1, 399'983, 1);
    expect_piece(laid_out(views), 399'984, 0, 0, 234'448);
}

TEST(VolumeLayout, AMirrorLiesOnEitherDiskAtItsOwnAddresses) {
    expect_piece(laid_out(pair_in(array_kind::mirror, 400'000, 300'000, 299'984)), 123, 0, 123,
                 299'861);
}

// Every piece of a volume: inside the members' data areas, and no sector of a disk twice.
void expect_sound(const port_views& views) {
    const volume_layout layout = laid_out(views);
    std::array<std::vector<bool>, ports> taken;
    for (std::size_t port = 0; port < taken.size(); ++port) {
        taken[port].resize(views[port].data_area());
    }
    for (std::uint64_t lba = 0; lba < layout.sectors;) {
        const layout_piece piece = piece_at(layout, lba, layout.sectors - lba);
        ASSERT_GT(piece.count, 0U) << lba;
        auto& area = taken[static_cast<std::size_t>(piece.port)];
        ASSERT_LE(piece.lba + piece.count, area.size()) << lba;
        for (std::uint64_t i = 0; i < piece.count; ++i) {
            ASSERT_FALSE(area[piece.lba + i]) << lba;
            area[piece.lba + i] = true;
        }
        lba += piece.count;
    }
}

TEST(VolumeLayout, NoSectorLiesOutsideTheMembersOrTwice) {
    for (const array_kind kind : {array_kind::stripe, array_kind::mirror, array_kind::span}) {
        for (const std::uint64_t first : {0U, 15U, 16U, 17U, 143U, 144U, 145U, 500U, 70'001U}) {
            for (const std::uint64_t second : {16U, 17U, 271U, 272U, 273U, 69'999U}) {
                for (const std::uint64_t array :
                     {1ULL, 2ULL, 255ULL, 257ULL, 1000ULL, 139'000ULL, 1ULL << 40, ~0ULL}) {
                    expect_sound(pair_in(kind, first, second, array));
                    ASSERT_FALSE(testing::Test::HasFailure())
                        << first << " " << second << " " << array;
                }
            }
        }
    }
}

TEST(VolumeLayout, ARecordLargerThanItsDiskIsCutToTheDisk) {
    const port_views views{member(array_kind::mirror, 0, 1000, ~0ULL), port_view{}};
    EXPECT_EQ(decide_volume(views), (volume{array_kind::mirror, volume_state::degraded, 984}));
}

TEST(VolumeLayout, TheNewerHalfOfADivergedMirrorIsTheVolume) {
    port_views views = pair_in(array_kind::mirror, 1000, 1000, 984);
    views[1].record->stamp = stamp_of("20240301093001");
    expect_piece(laid_out(views), 0, 1, 0, 984);
    std::swap(views[0], views[1]);
    expect_piece(laid_out(views), 0, 0, 0, 984);
}

TEST(VolumeLayout, TheSourceOfACopyIsTheVolume) {
    port_views views = pair_in(array_kind::mirror, 1000, 1000, 984);
    views[1].record->copy_source = true;
    expect_piece(laid_out(views), 0, 1, 0, 984);
}

} // namespace
} // namespace enclosure
