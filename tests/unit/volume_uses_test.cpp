// What the kernel's tables and folders say of a bridge's volume.
#include <gmock/gmock.h>
#include <ostream>
#include <string>

#include "device/sysfs_volume_uses.h"
#include "tests/unit/block_tree.h"

void PrintTo(const volume_use& use, std::ostream* out) {
    static constexpr const char* kinds[] = {"mounted", "swap", "held", "open", "unchecked"};
    *out << kinds[static_cast<int>(use.kind)] << " " << use.device << " " << use.where;
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

volume_use mounted(const std::string& device, const std::string& place) {
    return {volume_use_kind::mounted, device, place};
}

volume_use swap_on(const std::string& device) {
    return {volume_use_kind::swap, device, {}};
}

volume_use held(const std::string& device, const std::string& by) {
    return {volume_use_kind::held, device, by};
}

volume_use open_there(const std::string& device, const std::string& kind) {
    return {volume_use_kind::open, device, kind};
}

const volume_use unchecked{volume_use_kind::unchecked, {}, {}};

// A bridge with the disk sdb and its partitions sdb1 and sdb2; sda is the system's own.
class VolumeUses : public testing::Test {
protected:
    void SetUp() override {
        handle_ = tree_.add(bridge_);
        tree_.add_block("pci0/ata1/host0/target0:0:0/0:0:0:0/block", "sda", "8:0");
        tree_.add_partition("sda", "sda1", "8:1");
        tree_.add_disk(bridge_, "sdb", "8:16");
        tree_.add_partition("sdb", "sdb1", "8:17");
        tree_.add_partition("sdb", "sdb2", "8:18");
    }

    std::vector<volume_use> uses() { return uses_of(handle_); }
    std::vector<volume_use> uses_of(std::uint32_t device) {
        return sysfs_volume_uses(tree_.sysfs(), tree_.proc()).of(device);
    }

    block_tree tree_;
    tree_bridge bridge_;
    std::uint32_t handle_ = 0;
};

} // namespace

TEST_F(VolumeUses, OfAnUnusedVolumeAreNone) {
    EXPECT_THAT(uses(), IsEmpty());
}

TEST_F(VolumeUses, OfABridgeWithoutAVolumeAreNone) {
    tree_bridge bare;
    bare.carrier = "usb1/1-2";
    bare.host = "7";
    bare.sg = 1;
    EXPECT_THAT(uses_of(tree_.add(bare)), IsEmpty());
}

TEST_F(VolumeUses, AreAMountedDiskAndItsMountedPartitions) {
    tree_.mount("8:18", "/media/b", "/dev/sdb2");
    tree_.mount("8:16", "/media/whole", "/dev/sdb");
    tree_.mount("8:17", "/media/a", "/dev/sdb1");
    EXPECT_THAT(uses(), ElementsAre(mounted("sdb", "/media/whole"), mounted("sdb1", "/media/a"),
                                    mounted("sdb2", "/media/b")));
}

TEST_F(VolumeUses, NameEveryMountPointOnce) {
    tree_.mount("8:17", "/media/a", "/dev/sdb1");
    tree_.mount("8:17", "/srv/bound", "/dev/sdb1");
    tree_.mount("8:17", "/media/a", "/dev/sdb1");
    EXPECT_THAT(uses(), ElementsAre(mounted("sdb1", "/media/a"), mounted("sdb1", "/srv/bound")));
}

TEST_F(VolumeUses, AreKnownByTheNumberWhateverTheSourceSays) {
    tree_.mount("8:17", "/media/a", "/dev/disk/by-uuid/1234");
    tree_.mount("8:1", "/mnt", "/dev/sdb1");
    EXPECT_THAT(uses(), ElementsAre(mounted("sdb1", "/media/a")));
}

TEST_F(VolumeUses, OfAFileSystemWithANumberOfItsOwnAreKnownByTheSource) {
    tree_.mount("0:44", "/media/btrfs", "/dev/sdb1");
    tree_.mount("0:45", "/media/other", "/dev/sdb11");
    tree_.mount("0:46", "/merged", "overlay");
    EXPECT_THAT(uses(), ElementsAre(mounted("sdb1", "/media/btrfs")));
}

TEST_F(VolumeUses, OfAFileSystemOverSeveralDisksAreFoundWhicheverIsNamed) {
    tree_.write("sys/fs/btrfs/features/raid1c34", "0\n");
    tree_.write("sys/fs/btrfs/1111-aaaa/devices/sda1/dev", "");
    tree_.write("sys/fs/btrfs/1111-aaaa/devices/sdb1/dev", "");
    tree_.write("sys/fs/btrfs/2222-bbbb/devices/sda2/dev", "");
    tree_.mount("0:44", "/pool", "/dev/sda1");
    tree_.mount("0:45", "/other", "/dev/sda2");
    EXPECT_THAT(uses(), ElementsAre(mounted("sdb1", "/pool")));
}

TEST_F(VolumeUses, NameMountPointsWithTheirBytes) {
    tree_.mount("8:17",
                R"(/media/My\040Disk\012\033[2J)"
                "\xFF<b>",
                "/dev/sdb1");
    EXPECT_THAT(uses(), ElementsAre(mounted("sdb1", "/media/My Disk\n\x1B[2J\xFF<b>")));
}

TEST_F(VolumeUses, AreSwapAreas) {
    tree_.swap_on("/dev/sdb2");
    EXPECT_THAT(uses(), ElementsAre(swap_on("sdb2")));
}

TEST_F(VolumeUses, AreHoldersAndWhatTheyAreUsedFor) {
    tree_.add_virtual("md0", "9:0");
    tree_.add_partition("md0", "md0p1", "259:0");
    tree_.hold("sdb1", "md0");
    EXPECT_THAT(uses(), ElementsAre(held("sdb1", "md0")));
    tree_.mount("259:0", "/srv/md", "/dev/md0p1");
    EXPECT_THAT(uses(), ElementsAre(mounted("md0p1", "/srv/md"), held("sdb1", "md0")));
}

TEST_F(VolumeUses, AreFollowedToTheEndOfTheChain) {
    tree_.add_virtual("dm-0", "254:0", "luks-home");
    tree_.add_virtual("dm-1", "254:1", "vg-data");
    tree_.add_virtual("dm-2", "254:2", "vg-swap");
    tree_.hold("sdb1", "dm-0");
    tree_.hold("dm-0", "dm-1");
    tree_.hold("dm-0", "dm-2");
    tree_.mount("254:1", "/home", "/dev/mapper/vg-data");
    tree_.swap_on("/dev/dm-2");
    EXPECT_THAT(uses(), ElementsAre(mounted("vg-data", "/home"), swap_on("vg-swap"),
                                    held("sdb1", "luks-home"), held("luks-home", "vg-data"),
                                    held("luks-home", "vg-swap")));
}

TEST_F(VolumeUses, OfAMappedDeviceAreKnownByEitherNameOfItsNode) {
    tree_.add_virtual("dm-0", "254:0", "luks-home");
    tree_.hold("sdb1", "dm-0");
    tree_.mount("0:50", "/a", "/dev/mapper/luks-home");
    tree_.mount("0:51", "/b", "/dev/dm-0");
    tree_.mount("0:52", "/c", "/dev/mapper/sdb1");
    EXPECT_THAT(uses(), ElementsAre(mounted("luks-home", "/a"), mounted("luks-home", "/b"),
                                    held("sdb1", "luks-home")));
}

TEST_F(VolumeUses, OfOneHolderOverTwoPartitionsAreFollowedOnce) {
    tree_.add_virtual("dm-0", "254:0", "vg-data");
    tree_.hold("sdb1", "dm-0");
    tree_.hold("sdb2", "dm-0");
    tree_.hold("dm-0", "dm-0"); // nothing turns in circles
    tree_.mount("254:0", "/data", "/dev/mapper/vg-data");
    EXPECT_THAT(uses(), ElementsAre(mounted("vg-data", "/data"), held("sdb1", "vg-data"),
                                    held("sdb2", "vg-data"), held("vg-data", "vg-data")));
}

TEST_F(VolumeUses, OfTheOtherLogicalUnitsOfTheBridgeCountAsWell) {
    tree_bridge second = bridge_;
    second.lun = "1";
    second.sg = 1;
    const std::uint32_t other = tree_.add(second);
    tree_.add_disk(second, "sdc", "8:32");
    tree_.mount("8:32", "/media/second", "/dev/sdc");
    EXPECT_THAT(uses(), ElementsAre(mounted("sdc", "/media/second")));
    EXPECT_EQ(uses_of(other), uses());
}

TEST_F(VolumeUses, OfABridgeOnFireWireAreItsOwn) {
    tree_bridge firewire{"pci0/fw1", "firewire", "7", "0", 1};
    const std::uint32_t handle = tree_.add(firewire);
    tree_.add_disk(firewire, "sdc", "8:32");
    firewire.lun = "1";
    firewire.sg = 2;
    tree_.add(firewire);
    tree_.add_disk(firewire, "sdd", "8:48");
    tree_.mount("8:48", "/media/d", "/dev/sdd");
    EXPECT_THAT(uses_of(handle), ElementsAre(mounted("sdd", "/media/d")));
}

TEST_F(VolumeUses, OfOtherDisksAreNoneOfItsOwn) {
    tree_bridge neighbour;
    neighbour.carrier = "usb1/1-10"; // begins like 1-1
    neighbour.host = "8";
    neighbour.sg = 1;
    tree_.add(neighbour);
    tree_.add_disk(neighbour, "sdc", "8:32");
    tree_.add_partition("sdc", "sdc1", "8:33");
    tree_.add_virtual("dm-0", "254:0", "luks-home");
    tree_.hold("sdc1", "dm-0");
    tree_.hold("sda1", "dm-0");
    tree_.mount("8:33", "/media/c", "/dev/sdc1");
    tree_.mount("254:0", "/home", "/dev/mapper/luks-home");
    tree_.swap_on("/dev/sda2");
    EXPECT_THAT(uses(), IsEmpty());
}

TEST_F(VolumeUses, OfANodeThatHangsOnNeitherBusAreThoseOfItsDiskAlone) {
    tree_bridge internal{"pci0", "pci", "1", "0", 1};
    const std::uint32_t handle = tree_.add(internal);
    tree_.add_disk(internal, "sdc", "8:32");
    tree_.mount("8:32", "/c", "/dev/sdc");
    tree_.mount("8:0", "/a", "/dev/sda");
    EXPECT_THAT(uses_of(handle), ElementsAre(mounted("sdc", "/c")));
}

TEST_F(VolumeUses, OfADeviceThatHasTakenTheNodesNumberAreNotTold) {
    tree_.mount("8:17", "/media/a", "/dev/sdb1");
    EXPECT_THAT(uses_of(handle_ ^ 0x8000U), IsEmpty()) << "another arrival";
    EXPECT_THAT(uses_of(handle_ ^ 1U), IsEmpty()) << "another node";
}

TEST_F(VolumeUses, OfABridgeThatHasGoneAreNone) {
    tree_.mount("8:17", "/media/a", "/dev/sdb1");
    tree_.remove_node(bridge_);
    EXPECT_THAT(uses(), IsEmpty());
}

TEST_F(VolumeUses, OfALoopDeviceAndWhatIsMountedOnIt) {
    tree_.add_block("virtual/block", "loop0", "7:0");
    tree_.add_block("virtual/block", "loop1", "7:1");
    tree_.write("sys/devices/virtual/block/loop0/loop/backing_file", "/dev/sdb1\n");
    tree_.write("sys/devices/virtual/block/loop1/loop/backing_file", "/dev/sdb11\n");
    tree_.mount("7:0", "/mnt/rescue", "/dev/loop0");
    tree_.mount("7:1", "/mnt/other", "/dev/loop1");
    EXPECT_THAT(uses(), ElementsAre(mounted("loop0", "/mnt/rescue"), held("sdb1", "loop0")));
}

TEST_F(VolumeUses, OfAFileSystemThatNoTableOfOursTellsOf) {
    tree_.write("sys/fs/ext4/features/verity", "");
    tree_.write("sys/fs/ext4/sdb2/errors_count", "0\n");
    tree_.write("sys/fs/xfs/sda1/stats/stats", "");
    EXPECT_THAT(uses(), ElementsAre(open_there("sdb2", "ext4")));
}

TEST_F(VolumeUses, OfABtrfsThatNoTableOfOursTellsOf) {
    tree_.write("sys/fs/btrfs/1111-aaaa/devices/sdb1/dev", "");
    EXPECT_THAT(uses(), ElementsAre(open_there("sdb1", "btrfs")));
}

TEST_F(VolumeUses, OfAMountedFileSystemAreToldOnce) {
    tree_.write("sys/fs/ext4/sdb2/errors_count", "0\n");
    tree_.mount("8:18", "/media/a", "/dev/sdb2");
    EXPECT_THAT(uses(), ElementsAre(mounted("sdb2", "/media/a")));
}

TEST_F(VolumeUses, OfABridgeOfAnotherLibrarysHandleAreUnchecked) {
    EXPECT_THAT(uses_of(0), ElementsAre(unchecked));
    EXPECT_THAT(uses_of(21U << 8), ElementsAre(unchecked)); // a device number, say
    EXPECT_THAT(uses_of(0x4B520000), ElementsAre(unchecked));
    EXPECT_THAT(uses_of(0x4C000000), ElementsAre(unchecked));
}

TEST_F(VolumeUses, OfAnEmulatedBridgeAreNoneWhateverCanBeRead) {
    tree_.remove("sys");
    tree_.remove("proc");
    EXPECT_THAT(uses_of(0x4B520001), IsEmpty());
}

TEST_F(VolumeUses, OfAKernelWithoutSwapAreStillKnown) {
    tree_.remove("proc/swaps");
    EXPECT_THAT(uses(), IsEmpty());
}

TEST_F(VolumeUses, AreUncheckedWhenATableCannotBeRead) {
    tree_.remove("proc/self/mountinfo");
    EXPECT_THAT(uses(), ElementsAre(unchecked));
    tree_.write("proc/self/mountinfo/folder", "");
    EXPECT_THAT(uses(), ElementsAre(unchecked));
    tree_.remove("proc/self/mountinfo");
    tree_.write("proc/self/mountinfo", "");
    EXPECT_THAT(uses(), IsEmpty());
    tree_.remove("proc/swaps");
    tree_.write("proc/swaps/folder", "");
    EXPECT_THAT(uses(), ElementsAre(unchecked));
}

TEST_F(VolumeUses, AreUncheckedWhenSysfsDoesNotTell) {
    const std::string disk = "sys/devices/" + bridge_.scsi_device() + "/block/sdb";
    tree_.remove(disk + "/sdb1/dev");
    EXPECT_THAT(uses(), ElementsAre(unchecked));
    tree_.write(disk + "/sdb1/dev", "8:17\n");
    EXPECT_THAT(uses(), IsEmpty());
    tree_.remove(disk + "/sdb2/holders");
    tree_.mount("8:17", "/media/a", "/dev/sdb1");
    EXPECT_THAT(uses(), ElementsAre(mounted("sdb1", "/media/a"), unchecked));
}

TEST_F(VolumeUses, AreUncheckedWithoutTheFoldersOfAllDevices) {
    tree_.remove("sys/devices/" + bridge_.scsi_device() + "/scsi_generic/sg0/device");
    EXPECT_THAT(uses(), ElementsAre(unchecked));
    tree_.remove("sys/class/block");
    EXPECT_THAT(uses(), ElementsAre(unchecked));
    tree_.remove("sys");
    EXPECT_THAT(uses(), ElementsAre(unchecked));
}

TEST_F(VolumeUses, AreUncheckedWhileAHolderIsOnlyComing) {
    tree_.add_virtual("dm-0", "254:0", "luks-home");
    tree_.hold("sdb1", "dm-0");
    tree_.remove("sys/class/block/dm-0");
    EXPECT_THAT(uses(), ElementsAre(unchecked));
}

TEST_F(VolumeUses, AreUncheckedWhenALoopDeviceDoesNotTellItsFile) {
    const std::string file = "sys/devices/virtual/block/loop0/loop/backing_file";
    tree_.add_block("virtual/block", "loop0", "7:0");
    tree_.write(file + "/folder", "");
    EXPECT_THAT(uses(), ElementsAre(unchecked));
    tree_.remove(file);
    tree_.write(file, ""); // while it is being given one, or loses it
    EXPECT_THAT(uses(), ElementsAre(unchecked));
    tree_.remove(file); // it has none
    EXPECT_THAT(uses(), IsEmpty());
}

TEST_F(VolumeUses, AreUncheckedWhenAMappedDeviceDoesNotTellItsName) {
    tree_.add_virtual("dm-0", "254:0");
    tree_.write("sys/devices/virtual/block/dm-0/dm/name/folder", "");
    EXPECT_THAT(uses(), ElementsAre(unchecked));
}

TEST_F(VolumeUses, AreNotUncheckedForALoopDeviceOfAFileWithAnyName) {
    const std::string file = "sys/devices/virtual/block/loop0/loop/backing_file";
    tree_.add_block("virtual/block", "loop0", "7:0");
    tree_.write(file, "/home/j\xC3\xBCrgen/disk.img\n");
    EXPECT_THAT(uses(), IsEmpty());
    tree_.write(file, "/" + std::string(300, 'a') + "\n");
    EXPECT_THAT(uses(), IsEmpty());
}

TEST_F(VolumeUses, LeaveOutADeviceThatGoesDuringTheLook) {
    tree_.remove("sys/devices/" + bridge_.scsi_device() + "/block/sdb/sdb2"); // its link dangles
    tree_.mount("8:17", "/media/a", "/dev/sdb1");
    EXPECT_THAT(uses(), ElementsAre(mounted("sdb1", "/media/a")));
}
