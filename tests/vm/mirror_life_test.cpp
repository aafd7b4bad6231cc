// A mirror's life behind a real kernel: made, used, degraded, rebuilt and moved, with every file in
// its place.
#include "model/krtool.h"

#include "tests/vm/enclosures.h"
#include "tests/vm/program.h"
#include "tests/vm/volume.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace {

using testing::IsEmpty;

constexpr std::size_t file_size = 300'000; // bytes

class MirrorLife : public testing::Test {
protected:
    MirrorLife() {
        start_program();
        for (real_enclosure* one : {&mirror_, &other_}) {
            one->usb().plug();
            await_chip("is there", one->name(), [](const krchip& chip) {
                return chip.disks[0].present != 0 && chip.disks[1].present != 0;
            });
        }
    }

    krchip await(const std::string& what, const std::function<bool(const krchip&)>& is_so) {
        return await_chip(what, mirror_.name(), is_so);
    }

    void create() {
        ASSERT_TRUE(change(mirror_.name(),
                           [](krchip& chip) { return chip.create_raid(mode_raid1, false); }));
        volume_ = block_device_of(await("is a mirror", [](const krchip& chip) {
            return chip.raid_valid != 0 && chip.raid_mode == mode_raid1 && !j.warm_boot_pending;
        }));
    }

    void rebuild_onto_the_second() {
        ASSERT_TRUE(change(mirror_.name(), [](krchip& chip) { return chip.rebuild(false); }));
        volume_ = block_device_of(await("copies", [](const krchip& chip) {
            return chip.rebuild_pending != 0 && !j.warm_boot_pending;
        }));
    }

    void lose_a_disk_in_use() {
        const mounted now(volume_);
        files_.add(20, file_size);
        mirror_.pull(1);
        await("has lost a disk", [](const krchip& chip) {
            return chip.disks[1].present == 0 && chip.raid_valid == 0;
        });
        files_.add(10, file_size);
        EXPECT_THAT(files_.differing(), IsEmpty());
    }

    void copy_onto_a_fresh_disk_in_use() {
        mirror_.make_disk("fresh", "64MB");
        mirror_.insert(1, "fresh");
        mirror_.set_rate(4);
        await("has a fresh disk", [](const krchip& chip) {
            return chip.disks[1].present != 0 && chip.rebuild_possible != 0;
        });
        rebuild_onto_the_second();
        {
            const mounted now(volume_);
            files_.add(10, file_size);
            EXPECT_TRUE(mirror_.copies()) << "written when the copy was over";
        }
        the_window().await("the copy has ended", [] {
            return testing::Value(the_window().messages(), testing::Contains("rebuild_finished"));
        });
    }

    void change_the_cable() {
        mirror_.usb().pull();
        the_window().await("the cable is out", [this] { return !chip_with(mirror_.name()); });
        mirror_.usb().plug();
        volume_ = block_device_of(await("is back", [](const krchip& chip) {
            return chip.raid_valid != 0 && chip.rebuild_pending == 0;
        }));
    }

    void run_on_the_copy_alone() {
        select(mirror_.name());
        mirror_.pull(0);
        await("runs on the copy", [](const krchip& chip) { return chip.disks[0].present == 0; });
    }

    void expect_every_file() {
        const mounted now(volume_, true);
        EXPECT_THAT(files_.differing(), IsEmpty());
    }

    real_enclosure mirror_{"mirror", "64MB"};
    real_enclosure other_{"other", "32MB"};
    known_files files_;
    std::string volume_;
};

TEST_F(MirrorLife, KeepsEveryFileThroughALostDiskARebuildAndAnotherCable) {
    create();
    make_file_system(volume_);
    lose_a_disk_in_use();
    copy_onto_a_fresh_disk_in_use();
    change_the_cable();
    expect_every_file();
    run_on_the_copy_alone();
    expect_every_file();
    EXPECT_EQ(files_.count(), 40U);
    EXPECT_TRUE(chip_with(other_.name()).has_value());
}

} // namespace
