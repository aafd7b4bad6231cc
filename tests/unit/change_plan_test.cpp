#include "model/change_plan.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include "model/krchip.h"
#include "tests/support/fixture.h"

namespace {

using fates = std::array<disk_fate, 2>;

constexpr fates nothing = {disk_fate::untouched, disk_fate::untouched};
constexpr std::uint64_t usual_size = 2014;

const std::vector<array_change> every_change = {
    array_change::create,      array_change::clear_array, array_change::clear_disk0,
    array_change::clear_disk1, array_change::rebuild0to1, array_change::rebuild1to0};

krdisk disk_of(const identify_block& block, int mode) {
    krdisk disk;
    const sector_bytes identify = block.bytes();
    disk.initialize(reinterpret_cast<const char*>(identify.data()));
    disk.present = 1;
    disk.raid_mode = mode;
    disk.raid_capacity = usual_size - 16;
    return disk;
}

// A chip with an array of `mode` over the disks A and B.
krchip chip_of(int mode) {
    krchip chip;
    chip.identity = usb_identity(0x14100000);
    chip.device = 0x11;
    chip.raid_mode = mode;
    chip.disks = {disk_of(disk_a(), mode), disk_of(disk_b(), mode)};
    return chip;
}

change_plan plan_of(array_change what, const krchip& chip, int mode = 2) {
    return plan_change(what, mode, &chip, "Enclosure", {});
}

fates fates_of(array_change what, const krchip& chip, int mode = 2) {
    const change_plan plan = plan_of(what, chip, mode);
    return {plan.disks[0].fate, plan.disks[1].fate};
}

// What a copy from port 0 to port 1 means for a target of `capacity` sectors, and a source whose
// array has `needed`.
planned_disk target_of(std::uint64_t capacity, std::uint64_t needed) {
    krchip chip = chip_of(2);
    chip.disks[0].raid_capacity = needed;
    chip.disks[1].capacity = capacity;
    return plan_of(array_change::rebuild0to1, chip).disks[1];
}

// The names of all changes whose plan, made for `before`, does not hold for `after` any longer.
std::vector<array_change> upset(const krchip& before, const krchip& after) {
    std::vector<array_change> result;
    for (const array_change what : every_change) {
        if (!still_holds(plan_of(what, before), &after, {})) {
            result.push_back(what);
        }
    }
    return result;
}

const std::vector<array_change> none = {};

} // namespace

TEST(ChangePlan, ToCreateLosesAllDataOfBothDisksWhateverTheyAreNow) {
    constexpr fates lost = {disk_fate::all_lost, disk_fate::all_lost};
    for (const int before : {0, 1, 2, 4}) {
        for (const int mode : {1, 2, 4}) {
            EXPECT_EQ(fates_of(array_change::create, chip_of(before), mode), lost);
        }
    }
}

TEST(ChangePlan, ToDeleteAMirrorKeepsTheDataOfBothDisks) {
    EXPECT_EQ(fates_of(array_change::clear_array, chip_of(2)),
              (fates{disk_fate::keeps_data, disk_fate::keeps_data}));
}

TEST(ChangePlan, ToDeleteAnythingElseLosesAllData) {
    for (const int mode : {0, 1, 3, 4, 5, 255}) {
        EXPECT_EQ(fates_of(array_change::clear_array, chip_of(mode)),
                  (fates{disk_fate::all_lost, disk_fate::all_lost}))
            << "mode " << mode;
    }
}

// Two mirror halves that never were an array together.
TEST(ChangePlan, ToDeleteGoesByTheModeOfTheArrayNotOfTheMembers) {
    krchip chip = chip_of(2);
    chip.raid_mode = 0;
    EXPECT_EQ(fates_of(array_change::clear_array, chip),
              (fates{disk_fate::all_lost, disk_fate::all_lost}));
}

TEST(ChangePlan, ToCreateWhatIsNoArrayIsAPlanToDelete) {
    for (const int mode : {0, 3, 5, -1, 255}) {
        const change_plan plan = plan_of(array_change::create, chip_of(2), mode);
        EXPECT_EQ(plan.what, array_change::clear_array) << "mode " << mode;
        EXPECT_EQ(plan.mode, mode);
        EXPECT_EQ(plan.disks[0].fate, disk_fate::keeps_data);
    }
    EXPECT_EQ(plan_of(array_change::create, chip_of(2), 4).what, array_change::create);
}

TEST(ChangePlan, WithAModeOnlyTurnsACreationIntoADeletion) {
    for (const array_change what : every_change) {
        if (what != array_change::create) {
            EXPECT_EQ(plan_of(what, chip_of(2), 0).what, what);
        }
    }
}

TEST(ChangePlan, ToWipeADiskLeavesTheOtherUntouched) {
    for (const int mode : {0, 1, 2, 4}) {
        EXPECT_EQ(fates_of(array_change::clear_disk0, chip_of(mode)),
                  (fates{disk_fate::all_lost, disk_fate::untouched}));
        EXPECT_EQ(fates_of(array_change::clear_disk1, chip_of(mode)),
                  (fates{disk_fate::untouched, disk_fate::all_lost}));
    }
}

TEST(ChangePlan, ToRebuildReadsTheSourceAndOverwritesTheTarget) {
    EXPECT_EQ(fates_of(array_change::rebuild0to1, chip_of(2)),
              (fates{disk_fate::read, disk_fate::overwritten}));
    EXPECT_EQ(fates_of(array_change::rebuild1to0, chip_of(2)),
              (fates{disk_fate::overwritten, disk_fate::read}));
}

TEST(ChangePlan, ToRebuildFromADiskThatIsNoMirrorMemberTouchesNothing) {
    for (const int mode : {0, 1, 3, 4}) {
        krchip chip = chip_of(2);
        chip.disks[0].raid_mode = mode;
        EXPECT_EQ(fates_of(array_change::rebuild0to1, chip), nothing) << "mode " << mode;
        EXPECT_EQ(fates_of(array_change::rebuild1to0, chip),
                  (fates{disk_fate::overwritten, disk_fate::read}))
            << "mode " << mode << " of the target";
    }
}

TEST(ChangePlan, LeavesAnAbsentDiskUntouchedAndWithoutAName) {
    krchip chip = chip_of(2);
    chip.disks[1].present = 0;
    for (const array_change what : every_change) {
        const change_plan plan = plan_of(what, chip);
        EXPECT_EQ(plan.disks[1], planned_disk());
        EXPECT_TRUE(plan.disks[0].present);
    }
}

TEST(ChangePlan, WithoutAChipChangesNothing) {
    for (const array_change what : every_change) {
        const change_plan plan = plan_change(what, 2, nullptr, "Enclosure", {});
        EXPECT_FALSE(plan.has_chip);
        EXPECT_EQ(plan.what, what);
        EXPECT_EQ(plan.enclosure, "Enclosure");
        EXPECT_EQ(plan.disks[0], planned_disk());
        EXPECT_EQ(plan.disks[1], planned_disk());
    }
}

TEST(ChangePlan, NamesTheEnclosureAndBothDisks) {
    const krchip chip = chip_of(2);
    const change_plan plan = plan_of(array_change::clear_disk0, chip);
    EXPECT_TRUE(plan.has_chip);
    EXPECT_EQ(plan.controller, chip.identity);
    EXPECT_EQ(plan.enclosure, "Enclosure");
    EXPECT_EQ(plan.disks[0].model, "DISK A");
    EXPECT_EQ(plan.disks[0].serial, "SN-A");
    EXPECT_EQ(plan.disks[1].model, "DISK B");
    EXPECT_EQ(plan.disks[1].serial, "SN-B");
    EXPECT_EQ(plan.disks[1].capacity, usual_size);
    EXPECT_EQ(plan.disks[1].identify_model_raw, chip.disks[1].identify_model_raw);
    EXPECT_EQ(plan.disks[1].identify_serial_raw, chip.disks[1].identify_serial_raw);
}

TEST(ChangePlanWarning, OfATargetThatIsTooSmallTellsByHowManySectors) {
    EXPECT_EQ(target_of(2013, 2014).missing_sectors, 1U);
    EXPECT_EQ(target_of(2014, 2014).missing_sectors, 0U);
    EXPECT_EQ(target_of(0, 2014).missing_sectors, 2014U);
    EXPECT_FALSE(target_of(2013, 2014).record_inside_mirror) << "it is told once";
    constexpr std::uint64_t huge = std::numeric_limits<std::uint64_t>::max();
    EXPECT_EQ(target_of(0, huge).missing_sectors, huge);
    EXPECT_EQ(target_of(huge, 0).missing_sectors, 0U);
}

TEST(ChangePlanWarning, OfARecordInsideTheMirrorBeginsWhereTheRecordWouldBeOverwritten) {
    EXPECT_TRUE(target_of(2014, 2014).record_inside_mirror);
    EXPECT_TRUE(target_of(2014, 2014 - 14).record_inside_mirror);
    EXPECT_FALSE(target_of(2014, 2014 - 15).record_inside_mirror);
    EXPECT_FALSE(target_of(2014, 0).record_inside_mirror);
}

TEST(ChangePlanWarning, OfSizesIsForTheTargetOfARebuildAlone) {
    krchip chip = chip_of(2);
    chip.disks[0].raid_capacity = 5000;
    chip.disks[1].raid_capacity = 5000;
    for (const array_change what : every_change) {
        const change_plan plan = plan_of(what, chip);
        const bool to0 = what == array_change::rebuild1to0;
        const bool to1 = what == array_change::rebuild0to1;
        EXPECT_EQ(plan.disks[0].missing_sectors, to0 ? 5000 - usual_size : 0);
        EXPECT_EQ(plan.disks[1].missing_sectors, to1 ? 5000 - usual_size : 0);
    }
    EXPECT_EQ(plan_of(array_change::clear_array, chip_of(2)).disks[0].record_inside_mirror, false);
}

TEST(ChangePlanWarning, OfADiskLargerThanWhatIsUsedOfIt) {
    krchip chip = chip_of(1);
    chip.disks[0].lba48_sectors = usual_size + 1;
    EXPECT_TRUE(plan_of(array_change::create, chip).disks[0].larger_than_used);
    EXPECT_FALSE(plan_of(array_change::create, chip).disks[1].larger_than_used) << "equal";
    chip.disks[0].lba48_sectors = 0;
    EXPECT_FALSE(plan_of(array_change::create, chip).disks[0].larger_than_used);
}

TEST(ChangePlanWarning, OfADiskWhoseSectorsDoNotHaveFiveHundredAndTwelveBytes) {
    krchip chip = chip_of(1);
    for (const std::uint32_t bytes : {0U, 511U, 520U, 4096U}) {
        chip.disks[1].logical_sector_bytes = bytes;
        const change_plan plan = plan_of(array_change::clear_array, chip);
        EXPECT_FALSE(plan.disks[0].foreign_sectors);
        EXPECT_TRUE(plan.disks[1].foreign_sectors) << bytes;
    }
}

TEST(ChangePlanWarning, IsForEveryDiskThatIsWrittenToAndNoOther) {
    krchip chip = chip_of(2);
    for (krdisk& disk : chip.disks) {
        disk.lba48_sectors = usual_size + 1;
        disk.logical_sector_bytes = 4096;
    }
    for (const array_change what : every_change) {
        for (const planned_disk& disk : plan_of(what, chip).disks) {
            EXPECT_EQ(disk.larger_than_used, disk.fate != disk_fate::untouched);
            EXPECT_EQ(disk.foreign_sectors, disk.fate != disk_fate::untouched);
        }
    }
}

TEST(ConfirmedPlan, HoldsForTheSameChipAndForACopyOfIt) {
    EXPECT_EQ(upset(chip_of(2), chip_of(2)), none);
    EXPECT_EQ(upset(chip_of(0), chip_of(0)), none);
}

TEST(ConfirmedPlan, ToCreateWhatIsNoArrayHoldsForTheSameChip) {
    const krchip chip = chip_of(1);
    EXPECT_TRUE(still_holds(plan_of(array_change::create, chip, 0), &chip, {}));
}

TEST(ConfirmedPlan, DoesNotHoldForAnotherController) {
    krchip other = chip_of(2);
    other.identity = usb_identity(0x14200000);
    EXPECT_EQ(upset(chip_of(2), other), every_change);
    other.identity = firewire_identity(0x14100000);
    EXPECT_EQ(upset(chip_of(2), other), every_change);
}

TEST(ConfirmedPlan, DoesNotHoldOnceEitherDiskIsAnother) {
    for (const std::size_t port : {0U, 1U}) {
        SCOPED_TRACE("port " + std::to_string(port));
        const identify_block block = port == 0 ? disk_a() : disk_b();
        identify_block other = block;
        other.serial = "SN-C";
        krchip chip = chip_of(2);
        chip.disks[port] = disk_of(other, 2);
        EXPECT_EQ(upset(chip_of(2), chip), every_change);
        other = block;
        other.model = "DISK C";
        chip.disks[port] = disk_of(other, 2);
        EXPECT_EQ(upset(chip_of(2), chip), every_change);
        other = block;
        other.sectors48 = usual_size + 1;
        chip.disks[port] = disk_of(other, 2);
        EXPECT_EQ(upset(chip_of(2), chip), every_change);
    }
}

TEST(ConfirmedPlan, DoesNotHoldWhenOnlyTheStoredBytesOfANameDiffer) {
    krchip chip = chip_of(2);
    chip.disks[0].identify_serial_raw[19] = '\t'; // trimmed away in the text
    EXPECT_EQ(upset(chip_of(2), chip), every_change);
    chip = chip_of(2);
    chip.disks[1].identify_model_raw[39] = '\t';
    EXPECT_EQ(upset(chip_of(2), chip), every_change);
}

TEST(ConfirmedPlan, DoesNotHoldOnceEitherDiskHasGoneOrCome) {
    for (const std::size_t port : {0U, 1U}) {
        krchip alone = chip_of(2);
        alone.disks[port].present = 0;
        EXPECT_EQ(upset(chip_of(2), alone), every_change);
        EXPECT_EQ(upset(alone, chip_of(2)), every_change);
    }
}

TEST(ConfirmedPlan, ToDeleteAMirrorDoesNotHoldOnceItIsAStripe) {
    EXPECT_EQ(upset(chip_of(2), chip_of(1)),
              (std::vector{array_change::clear_array, array_change::rebuild0to1,
                           array_change::rebuild1to0}));
}

TEST(ConfirmedPlan, ToRebuildDoesNotHoldOnceTheSourceHasAnotherSizeOfArray) {
    krchip chip = chip_of(2);
    chip.disks[0].raid_capacity = usual_size + 1;
    EXPECT_EQ(upset(chip_of(2), chip), std::vector{array_change::rebuild0to1});
}

TEST(ConfirmedPlan, HoldsWhenOnlyFlagsAndTimeStampsAndHandlesChange) {
    krchip chip = chip_of(2);
    chip.device = 0x99;
    chip.raid_valid = 1;
    chip.raid_capacity = 77;
    chip.rebuild_pending = 1;
    chip.rebuild_possible = 1;
    chip.connection_open = 1;
    chip.polling = true;
    chip.poller_alive = true;
    chip.raid1_timer_on = true;
    chip.raid1_timer_alive = true;
    for (krdisk& disk : chip.disks) {
        disk.rebuild_mark = 1;
        disk.rebuild_role = 2;
        disk.member_mismatch = 1;
        disk.raid1_orphan = 1;
        disk.raid_time.fill('9');
        disk.raid_info_raw.bytes.fill(0x55);
        disk.partner_model_raw.fill('X');
        disk.partner_serial_raw.fill('X');
    }
    EXPECT_EQ(upset(chip_of(2), chip), none);
}

TEST(ConfirmedPlan, DoesNotHoldWithoutAChipUnlessThereWasNone) {
    const krchip chip = chip_of(2);
    for (const array_change what : every_change) {
        EXPECT_FALSE(still_holds(plan_of(what, chip), nullptr, {}));
        const change_plan for_none = plan_change(what, 2, nullptr, "Enclosure", {});
        EXPECT_FALSE(still_holds(for_none, &chip, {}));
        EXPECT_TRUE(still_holds(for_none, nullptr, {}));
    }
}

TEST(ChangePlanUses, AreThoseOfTheChipAndOfNoChipNone) {
    const krchip chip = chip_of(2);
    const std::vector<volume_use> uses = {{volume_use_kind::mounted, "sdb1", "/media/a"}};
    for (const array_change what : every_change) {
        EXPECT_EQ(plan_change(what, 2, &chip, "Enclosure", uses).uses, uses);
        EXPECT_EQ(plan_change(what, 2, nullptr, "Enclosure", uses).uses.size(), 0U);
    }
}

TEST(ConfirmedPlan, DoesNotHoldOnceTheVolumeIsUsedOtherwise) {
    const krchip chip = chip_of(2);
    const volume_use use{volume_use_kind::mounted, "sdb1", "/media/a"};
    volume_use elsewhere = use;
    elsewhere.where = "/media/b";
    volume_use other_device = use;
    other_device.device = "sdb2";
    volume_use other_kind = use;
    other_kind.kind = volume_use_kind::held;
    for (const array_change what : every_change) {
        EXPECT_FALSE(still_holds(plan_of(what, chip), &chip, {use}));
        const change_plan used = plan_change(what, 2, &chip, "Enclosure", {use});
        EXPECT_TRUE(still_holds(used, &chip, {use}));
        EXPECT_FALSE(still_holds(used, &chip, {}));
        for (const volume_use& now : {elsewhere, other_device, other_kind}) {
            EXPECT_FALSE(still_holds(used, &chip, {now}));
        }
    }
}
