// Arrays without a second copy behind a real kernel: their sizes, and what is on them.
#include "model/krtool.h"

#include "tests/vm/enclosures.h"
#include "tests/vm/program.h"
#include "tests/vm/volume.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::IsEmpty;

class ArrayWithoutCopy : public testing::TestWithParam<int> {};

TEST_P(ArrayWithoutCopy, HoldsFilesOnBothDisksAcrossAnotherCable) {
    start_program();
    real_enclosure box("array", "64MB");
    box.usb().plug();
    await_chip("is there", box.name(), [](const krchip& chip) {
        return chip.disks[0].present != 0 && chip.disks[1].present != 0;
    });
    ASSERT_TRUE(
        change(box.name(), [](krchip& chip) { return chip.create_raid(GetParam(), false); }));
    const auto is_array = [](const krchip& chip) {
        return chip.raid_valid != 0 && chip.raid_mode == GetParam() && !j.warm_boot_pending;
    };
    const krchip chip = await_chip("is an array", box.name(), is_array);
    const std::string volume = block_device_of(chip);
    EXPECT_EQ(sectors_of(volume), chip.raid_capacity);
    EXPECT_GT(chip.raid_capacity, chip.disks[0].capacity);

    make_file_system(volume);
    known_files files;
    {
        const mounted now(volume);
        files.add(75, 1'000'000); // more than either disk holds
    }
    box.usb().pull();
    the_window().await("the cable is out", [&] { return !chip_with(box.name()); });
    box.usb().plug();
    const mounted now(block_device_of(await_chip("is back", box.name(), is_array)), true);
    EXPECT_THAT(files.differing(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(, ArrayWithoutCopy, testing::Values(mode_raid0, mode_span),
                         [](const auto& kind) {
                             return kind.param == mode_raid0 ? "Stripe" : "Span";
                         });

} // namespace
