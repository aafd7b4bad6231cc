#include "device/mount_table.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

mount_entry only_mount(const std::string& line) {
    const std::vector<mount_entry> found = mounts_of(line);
    EXPECT_EQ(found.size(), 1U) << line;
    return found.empty() ? mount_entry() : found.front();
}

std::string place_of(const std::string& escaped) {
    return only_mount("1 2 8:1 / " + escaped + " rw - ext4 /dev/sda1 rw").place;
}

} // namespace

TEST(MountTable, TellsNumberPlaceAndSourceOfEachLine) {
    const auto found = mounts_of("36 35 98:0 /mnt1 /mnt2 rw,noatime master:1 - ext3 /dev/root rw\n"
                                 "22 1 8:17 / /media/a rw - vfat /dev/sdb1 rw\n");
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].number, "98:0");
    EXPECT_EQ(found[0].place, "/mnt2");
    EXPECT_EQ(found[0].source, "/dev/root");
    EXPECT_EQ(found[1].number, "8:17");
    EXPECT_EQ(found[1].place, "/media/a");
    EXPECT_EQ(found[1].source, "/dev/sdb1");
}

TEST(MountTable, HasAnyNumberOfOptionalFields) {
    EXPECT_EQ(only_mount("1 2 8:1 / /m rw - ext4 /dev/sda1 rw").source, "/dev/sda1");
    EXPECT_EQ(
        only_mount("1 2 8:1 / /m rw shared:1 master:2 propagate_from:3 - ext4 /dev/sda1 rw").source,
        "/dev/sda1");
}

TEST(MountTable, UndoesTheKernelsEscapes) {
    EXPECT_EQ(place_of(R"(/My\040Disk)"), "/My Disk");
    EXPECT_EQ(place_of(R"(/a\011b\012c\134d\043)"), "/a\tb\nc\\d#");
    EXPECT_EQ(place_of(R"(/\134040)"), "/\\040") << "once only";
    EXPECT_EQ(place_of(R"(/\377)"), "/\xFF");
    EXPECT_EQ(only_mount(R"(1 2 0:50 / /m rw - btrfs /dev/mapper/my\040disk rw)").source,
              "/dev/mapper/my disk");
}

TEST(MountTable, KeepsABackslashThatIsNoEscape) {
    EXPECT_EQ(place_of(R"(/a\x)"), R"(/a\x)");
    EXPECT_EQ(place_of(R"(/a\089)"), R"(/a\089)");
    EXPECT_EQ(place_of(R"(/a\04)"), R"(/a\04)");
    EXPECT_EQ(place_of(R"(/a\)"), R"(/a\)");
}

TEST(MountTable, LeavesOutWhatIsNoLineOfIt) {
    EXPECT_THAT(mounts_of(""), IsEmpty());
    EXPECT_THAT(mounts_of("\n \n\n"), IsEmpty());
    EXPECT_THAT(mounts_of("1 2 8:1 /"), IsEmpty());
}

TEST(MountTable, TakesALineThatEndsEarlyForWhatItTells) {
    for (const char* line : {"1 2 8:1 / /m", "1 2 8:1 / /m rw -", "1 2 8:1 / /m rw - ext4"}) {
        EXPECT_EQ(only_mount(line).place, "/m") << line;
        EXPECT_EQ(only_mount(line).source, "") << line;
    }
}

TEST(MountTable, TellsTheFilesOfSwapAreas) {
    EXPECT_THAT(swaps_of("Filename\t\t\tType\t\tSize\tUsed\tPriority\n"
                         "/dev/sdb2                partition\t1\t0\t-2\n"
                         "/swap\\040file            file\t\t1\t0\t-3\n"
                         "   \n"),
                ElementsAre("Filename", "/dev/sdb2", "/swap file"));
    EXPECT_THAT(swaps_of(""), IsEmpty());
}
