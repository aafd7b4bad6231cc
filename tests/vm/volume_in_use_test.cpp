// Who uses a volume, as the running kernel tells it.
#include "device/volume_uses.h"
#include "model/krtool.h"

#include "tests/vm/enclosures.h"
#include "tests/vm/program.h"
#include "tests/vm/shell.h"
#include "tests/vm/volume.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class VolumeInUse : public testing::Test {
protected:
    VolumeInUse() {
        start_program();
        box_.usb().plug();
        other_.usb().plug();
        await_chip("is there", other_.name(),
                   [](const krchip& chip) { return chip.disks[0].present != 0; });
        chip_ = await_chip("is there", box_.name(),
                           [](const krchip& chip) { return chip.disks[0].present != 0; });
        volume_ = block_device_of(chip_);
    }

    std::vector<volume_use> uses() { return j.with.volumes.of(chip_.device); }

    real_enclosure box_{"used", "32MB"};
    real_enclosure other_{"idle", "32MB"};
    krchip chip_;
    std::string volume_;
};

TEST_F(VolumeInUse, IsFreeUntilItIsMountedAndAfterwards) {
    EXPECT_THAT(uses(), IsEmpty());
    make_file_system(volume_);
    {
        const mounted now(volume_);
        EXPECT_THAT(uses(),
                    ElementsAre(volume_use{volume_use_kind::mounted, volume_, mounted::place()}));
        const krchip idle = *chip_with(other_.name());
        EXPECT_THAT(j.with.volumes.of(idle.device), IsEmpty());
    }
    EXPECT_THAT(uses(), IsEmpty());
}

TEST_F(VolumeInUse, IsASwapAreaOnAPartition) {
    run("printf 'n\\np\\n1\\n\\n\\nw\\n' | fdisk /dev/" + volume_);
    run("udevadm settle --timeout=60");
    const std::string partition = volume_ + "1";
    run("mkswap /dev/" + partition);
    run("swapon /dev/" + partition);
    EXPECT_THAT(uses(), ElementsAre(volume_use{volume_use_kind::swap, partition, ""}));
    run("swapoff /dev/" + partition);
    EXPECT_THAT(uses(), IsEmpty());
}

TEST_F(VolumeInUse, IsALoopDevice) {
    run("losetup /dev/loop0 /dev/" + volume_);
    EXPECT_THAT(uses(), ElementsAre(volume_use{volume_use_kind::held, volume_, "loop0"}));
    run("udevadm settle --timeout=60"); // while udev looks at it, it stays after it was given back
    run("losetup -d /dev/loop0");
    EXPECT_THAT(uses(), IsEmpty());
}

TEST_F(VolumeInUse, IsAFileSystemThatWasTakenOutOfTheTreeAndIsStillOpen) {
    make_file_system(volume_);
    {
        const mounted now(volume_);
        const std::ofstream open_file(mounted::place() + "/open");
        run("umount -l " + mounted::place());
        EXPECT_THAT(uses(), ElementsAre(volume_use{volume_use_kind::open, volume_, "ext4"}));
    }
    EXPECT_THAT(uses(), IsEmpty());
}

TEST_F(VolumeInUse, HasNoUsesOnceTheBridgeHasGone) {
    make_file_system(volume_);
    const mounted now(volume_);
    box_.usb().pull();
    the_window().await("the cable is out", [this] { return !chip_with(box_.name()); });
    EXPECT_THAT(uses(), IsEmpty());
}

} // namespace
