#include "enclosure/disk_image.h"

#include "enclosure/disk.h"
#include "enclosure/problem.h"

#include "tests/enclosure/builders.h"
#include "tests/enclosure/temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace enclosure {
namespace {

constexpr std::uint64_t eight_terabytes = 15'628'053'168;

class DiskImage : public testing::Test {
protected:
    std::filesystem::path file() const { return folder_.path() / "disk.img"; }

    struct stat status() const {
        struct stat held {};
        EXPECT_EQ(::stat(file().c_str(), &held), 0);
        return held;
    }

    temporary_folder folder_;
};

TEST_F(DiskImage, EightTerabytesTakeNoSpace) {
    disk_image::create(file(), eight_terabytes);
    EXPECT_EQ(static_cast<std::uint64_t>(status().st_size), eight_terabytes * sector_size);
    EXPECT_EQ(status().st_blocks, 0);
}

TEST_F(DiskImage, NobodyElseMayReadIt) {
    disk_image::create(file(), 100);
    EXPECT_EQ(status().st_mode & 0777U, 0600U);
}

TEST_F(DiskImage, ASectorReadsBackAsWritten) {
    disk_image image = disk_image::create(file(), eight_terabytes);
    ASSERT_TRUE(image.write(eight_terabytes - 15, sector_number(7)));
    sector_data data{};
    ASSERT_TRUE(image.read(eight_terabytes - 15, data));
    EXPECT_EQ(data, sector_number(7));
}

TEST_F(DiskImage, NothingLiesBeyondTheEnd) {
    disk_image image = disk_image::create(file(), 100);
    sector_data data{};
    EXPECT_FALSE(image.read(100, data));
    EXPECT_FALSE(image.write(100, data));
    EXPECT_FALSE(image.read(0xFFFFFFFFFFFFFFF1U, data));
    EXPECT_FALSE(image.clear(99, 2));
    std::vector<std::uint8_t> two(2 * sector_size);
    EXPECT_FALSE(image.write(99, two));
}

TEST_F(DiskImage, AnExistingFileIsNotOverwritten) {
    disk_image::create(file(), 100);
    EXPECT_THROW(disk_image::create(file(), 100), problem);
}

TEST_F(DiskImage, ExtentsTellStoredFromEmpty) {
    disk_image image = disk_image::create(file(), 100'000);
    ASSERT_TRUE(image.write(8000, sector_number(1)));
    const disk_image::extent before = image.extent_at(0, 100'000);
    EXPECT_FALSE(before.stored);
    EXPECT_LE(before.count, 8000U);
    EXPECT_TRUE(image.extent_at(8000, 100).stored);
    EXPECT_FALSE(image.extent_at(50'000, 10).stored);
    EXPECT_EQ(image.extent_at(50'000, 10).count, 10U);
}

TEST_F(DiskImage, ClearedSectorsReadZeroAndGiveTheirSpaceBack) {
    disk_image image = disk_image::create(file(), 100'000);
    for (std::uint64_t lba = 0; lba < 64; ++lba) {
        ASSERT_TRUE(image.write(lba, sector_number(lba)));
    }
    ASSERT_TRUE(image.clear(0, 64));
    sector_data data = sector_number(1);
    ASSERT_TRUE(image.read(3, data));
    EXPECT_EQ(data, sector_data{});
    EXPECT_FALSE(image.extent_at(0, 64).stored);
}

TEST_F(DiskImage, ADiskWithoutItsImageIsSilentAndSaysWhy) {
    disk lost = disk::open("lost", build_identify(label_of(100)), file());
    EXPECT_FALSE(lost.answers());
    EXPECT_NE(lost.missing().find(file().string()), std::string::npos);
    identify_block block{};
    EXPECT_FALSE(lost.perform({io_kind::identify, 0, 0, 0, block}));
    EXPECT_FALSE(std::filesystem::exists(file()));
}

TEST_F(DiskImage, ADiskWhoseImageIsTooShortIsSilent) {
    disk_image::create(file(), 99);
    EXPECT_NE(disk::open("cut", build_identify(label_of(100)), file()).missing(), "");
}

TEST_F(DiskImage, AnImageThatIsALinkIsNotFollowed) {
    disk_image::create(folder_.path() / "elsewhere", 100);
    std::filesystem::create_symlink(folder_.path() / "elsewhere", file());
    EXPECT_THROW(disk_image(file(), 100), problem);
}

} // namespace
} // namespace enclosure
