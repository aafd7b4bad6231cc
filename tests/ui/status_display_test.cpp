// What an update shows, worked out without a window.
#include "app/status_display.h"

#include <clocale>
#include <gtest/gtest.h>

#include "model/krchip.h"
#include "tests/support/table_lookup.h"
#include "tests/ui/window_test.h"

namespace {

constexpr std::uint64_t one_terabyte_disk = 1'953'525'168;

class status : public testing::Test {
protected:
    view_state view() const { return status_view(&chip, true, texts); }

    void put(int port, int mode = 0, std::uint64_t capacity = 2'000'000,
             std::uint64_t raid_capacity = 1'000'000) {
        put_disk(chip.disks[static_cast<std::size_t>(port)], capacity, mode, raid_capacity);
    }
    void make_array(int mode) {
        put(0, mode);
        put(1, mode);
        chip.raid_valid = 1;
        chip.raid_mode = mode;
        chip.raid_capacity = one_terabyte_disk;
    }

    krchip chip;
    table_lookup texts; // every text is its key
};

TEST_F(status, NoChipGivesTheBlankState) {
    const view_state blank = status_view(nullptr, true, texts);
    EXPECT_TRUE(blank.blank);
    EXPECT_TRUE(blank.alerts.empty());
    EXPECT_FALSE(blank.rebuild_running);
}

// Sizes.

TEST_F(status, OneTerabyteDiskReadsInTerabytesAsCapacityAndInGigabytesAsSize) {
    EXPECT_EQ(capacity_text(one_terabyte_disk, true), "1.00 TB");
    EXPECT_EQ(size_text(one_terabyte_disk, true), "1000 GB");
}

TEST_F(status, DiskOfOneTerabyteOnAnOlderSystemReads931InBothTexts) {
    EXPECT_EQ(capacity_text(one_terabyte_disk, false), "931 GB");
    EXPECT_EQ(size_text(one_terabyte_disk, false), "931 GB");
}

TEST_F(status, CapacityJustBelowATerabyteReadsInGigabytes) {
    EXPECT_EQ(capacity_text(1'953'124'999, true), "999 GB");
    EXPECT_EQ(capacity_text(1'953'125'000, true), "1.00 TB");
}

TEST_F(status, TerabytesAreMadeOfWholeGigabytes) {
    EXPECT_EQ(capacity_text(2'000'398'934'016 / 512, true), "2.00 TB");
    EXPECT_EQ(capacity_text(1'500'301'910'016 / 512, true), "1.50 TB");
    EXPECT_EQ(size_text(2'000'398'934'016 / 512, true), "2000 GB");
}

TEST_F(status, SizesThatWrapAreDefined) {
    EXPECT_EQ(size_text(std::uint64_t{1} << 55, true), "0 GB");
    EXPECT_EQ(size_text(~std::uint64_t{0}, false), "8796093022207 GB");
    EXPECT_EQ(capacity_text(0, true), "0 GB");
}

TEST_F(status, LanguageOfTheUserNeverPutsACommaInANumber) {
    // NOLINTBEGIN(concurrency-mt-unsafe): no other thread runs
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr) << "run it through ctest";
    EXPECT_EQ(capacity_text(1'500'301'910'016 / 512, true), "1.50 TB");
    std::setlocale(LC_ALL, "C");
    // NOLINTEND(concurrency-mt-unsafe)
}

// The table of one disk, row by row.

TEST_F(status, AbsentDiskShowsNothing) {
    put(0, mode_raid1);
    chip.disks[0].present = 0;
    const disk_view disk = view().disks[0];
    EXPECT_FALSE(disk.present);
    EXPECT_EQ(disk.modelfield + disk.serialfield + disk.sizefield + disk.modefield +
                  disk.rebuilddiskfield + disk.picmodefield + disk.caplabel + disk.label +
                  disk.oldnewlabel,
              "");
    EXPECT_FALSE(disk.cappicture);
    EXPECT_FALSE(disk.cleardiskbutton);
    EXPECT_FALSE(view().showdiskguibutton);
}

TEST_F(status, DiskWithoutAnArrayShowsItsPhysicalCapacityAndNoModeByItsPicture) {
    put(1);
    const disk_view disk = view().disks[1];
    EXPECT_EQ(disk.modelfield, "MODEL");
    EXPECT_EQ(disk.serialfield, "SERIAL");
    EXPECT_EQ(disk.modefield, "not_config");
    EXPECT_EQ(disk.rebuilddiskfield, "not_config");
    EXPECT_EQ(disk.picmodefield, "");
    EXPECT_EQ(disk.caplabel, "1 GB");
    EXPECT_TRUE(disk.cappicture);
    EXPECT_EQ(disk.label, "disk_2");
    EXPECT_FALSE(disk.cleardiskbutton);
    EXPECT_TRUE(view().showdiskguibutton);
}

TEST_F(status, SingleMemberShowsItsArraysCapacityAndCanBeCleared) {
    put(0, mode_raid0, 20'000'000, 10'000'000);
    const disk_view disk = view().disks[0];
    EXPECT_EQ(disk.modefield, "raid_0");
    EXPECT_EQ(disk.rebuilddiskfield, "raid_0");
    EXPECT_EQ(disk.picmodefield, "raid_0");
    EXPECT_EQ(disk.caplabel, "5 GB");
    EXPECT_EQ(disk.sizefield, "10 GB");
    EXPECT_EQ(disk.label, "disk_1");
    EXPECT_TRUE(disk.cleardiskbutton);
}

TEST_F(status, BrokenMemberSaysSoBehindItsMode) {
    put(0, mode_span);
    chip.disks[0].member_mismatch = 1;
    EXPECT_EQ(view().disks[0].modefield, "spanbroken");
    EXPECT_EQ(view().disks[0].picmodefield, "spanbroken");
    EXPECT_EQ(view().disks[0].rebuilddiskfield, "span");
    EXPECT_EQ(view().disks[0].condition, disk_condition::broken);
}

TEST_F(status, BothSuffixesStandTogetherBrokenFirst) {
    put(0, mode_raid1);
    chip.disks[0].member_mismatch = 1;
    EXPECT_EQ(view().disks[0].modefield, "raid_1brokendegrade");
}

TEST_F(status, ModesThreeAndFiveAreShownAsNotConfiguredWithThePhysicalCapacity) {
    for (const int mode : {3, 5}) {
        put(0, mode, 2'000'000, 20'000'000);
        const disk_view disk = view().disks[0];
        EXPECT_EQ(disk.modefield, "not_config");
        EXPECT_EQ(disk.picmodefield, "not_config");
        EXPECT_EQ(disk.caplabel, "1 GB");
        EXPECT_FALSE(disk.cleardiskbutton);
    }
}

TEST_F(status, EveryModeByteFromSixOnIsShownAsNotConfigured) {
    for (int mode = 6; mode <= 255; ++mode) {
        make_array(mode);
        EXPECT_EQ(view().disks[0].modefield, "not_config") << mode;
        EXPECT_EQ(view().raidmodelabel, "not_config") << mode;
    }
}

TEST_F(status, MemberOfAConfiguredArrayIsNotShownForItself) {
    make_array(mode_raid0);
    for (const disk_view& disk : view().disks) {
        EXPECT_EQ(disk.modefield, "raid_0");
        EXPECT_EQ(disk.rebuilddiskfield, "raid_0");
        EXPECT_EQ(disk.picmodefield, "");
        EXPECT_EQ(disk.label, "");
        EXPECT_FALSE(disk.cleardiskbutton);
    }
    EXPECT_TRUE(view().disks[0].cappicture);
    EXPECT_FALSE(view().disks[1].cappicture);
    EXPECT_EQ(view().disks[0].caplabel, "1.00 TB");
    EXPECT_EQ(view().disks[1].caplabel, "");
}

TEST_F(status, PendingRebuildNamesSourceAndTarget) {
    make_array(mode_raid1);
    chip.rebuild_pending = 1;
    chip.disks[1].rebuild_mark = 1;
    EXPECT_EQ(view().disks[0].modefield, "raid_1rebuild_target");
    EXPECT_EQ(view().disks[1].modefield, "raid_1rebuild_source");
    EXPECT_EQ(view().disks[1].rebuilddiskfield, "raid_1");
    EXPECT_EQ(view().raidmodelabel, "raid_1rebuilding");
}

TEST_F(status, HalfWithTheEarlierRecordIsCalledNewAndTheOtherOld) {
    put(0, mode_raid1);
    put(1, mode_raid1);
    chip.disks[0].rebuild_role = 1;
    chip.disks[1].rebuild_role = 2;
    EXPECT_EQ(view().disks[0].oldnewlabel, "old");
    EXPECT_EQ(view().disks[1].oldnewlabel, "new");
    chip.disks[0].rebuild_role = 3;
    EXPECT_EQ(view().disks[0].oldnewlabel, "");
}

TEST_F(status, TextOfADiskEndsAtItsFirstZeroByteAndIsLatin1) {
    put(0);
    chip.disks[0].model = std::string("M\xFC\0hidden", 9);
    chip.disks[0].serial = "<b>\x01\n";
    EXPECT_EQ(view().disks[0].modelfield, "M\xC3\xBC");
    EXPECT_EQ(view().disks[0].serialfield, "<b>\x01\n");
}

// Buttons.

TEST_F(status, ConfiguredArrayCanBeReplacedAndDeleted) {
    make_array(mode_raid0);
    EXPECT_TRUE(view().confirmbutton);
    EXPECT_TRUE(view().clearconfigbutton);
    EXPECT_EQ(view().raidmodelabel, "raid_0");
}

TEST_F(status, TwoDisksCanBeJoinedUnlessARebuildRuns) {
    put(0);
    EXPECT_FALSE(view().confirmbutton);
    put(1);
    EXPECT_TRUE(view().confirmbutton);
    EXPECT_FALSE(view().clearconfigbutton);
    chip.polling = true;
    EXPECT_FALSE(view().confirmbutton);
    make_array(mode_raid1);
    EXPECT_TRUE(view().confirmbutton);
}

class rebuild_buttons : public status {
protected:
    void SetUp() override {
        put(0, mode_raid1, 2'000'000, 1'000'000);
        put(1, 0, 1'000'000);
    }
};

TEST_F(rebuild_buttons, MirrorMemberCanBeCopiedOntoADiskOfExactlyItsCapacity) {
    EXPECT_TRUE(view().disks[0].rebuildbutton);
    EXPECT_FALSE(view().disks[1].rebuildbutton);
}

TEST_F(rebuild_buttons, TargetOneSectorTooSmallKeepsTheButtonDisabled) {
    chip.disks[1].capacity = 999'999;
    EXPECT_FALSE(view().disks[0].rebuildbutton);
}

TEST_F(rebuild_buttons, OtherDirectionIsJudgedByTheOtherDisk) {
    put(0, 0, 1'000'000);
    put(1, mode_raid1, 2'000'000, 1'000'000);
    EXPECT_FALSE(view().disks[0].rebuildbutton);
    EXPECT_TRUE(view().disks[1].rebuildbutton);
    chip.disks[0].capacity = 999'999;
    EXPECT_FALSE(view().disks[1].rebuildbutton);
}

TEST_F(rebuild_buttons, NeedAPartner) {
    chip.disks[1].present = 0;
    EXPECT_FALSE(view().disks[0].rebuildbutton);
}

TEST_F(rebuild_buttons, NeedAMirrorMember) {
    chip.disks[0].raid_mode = mode_raid0;
    EXPECT_FALSE(view().disks[0].rebuildbutton);
}

TEST_F(rebuild_buttons, RestWhileARebuildRuns) {
    chip.polling = true;
    EXPECT_FALSE(view().disks[0].rebuildbutton);
}

TEST_F(rebuild_buttons, RestWhileTheArrayIsConfigured) {
    chip.raid_valid = 1;
    EXPECT_FALSE(view().disks[0].rebuildbutton);
}

// Alerts and tabs.

TEST_F(status, LoneMirrorMemberIsDegradedAndSaysSoOnce) {
    put(0, mode_raid1);
    chip.disks[0].raid1_orphan = 1;
    const view_state shown = view();
    EXPECT_EQ(shown.disks[0].modefield, "raid_1degrade");
    EXPECT_EQ(shown.alerts, std::vector<std::string>{"raid1_degrade_mode"});
    EXPECT_EQ(shown.alert_title, "attention");
    EXPECT_FALSE(shown.disks[0].rebuildbutton);
    EXPECT_FALSE(shown.disks[1].rebuildbutton);
    EXPECT_TRUE(shown.disks[0].cleardiskbutton);
    EXPECT_FALSE(shown.rebuild_tab_for_choice);
    EXPECT_EQ(shown.disks[0].condition, disk_condition::degraded);
}

TEST_F(status, TwoOrphansShowOneDegradeAlert) {
    put(0, mode_raid1);
    put(1, mode_raid1);
    chip.disks[0].raid1_orphan = chip.disks[1].raid1_orphan = 1;
    EXPECT_EQ(view().alerts,
              (std::vector<std::string>{"raid1_degrade_mode", "raid_info_conflict"}));
}

TEST_F(status, OrphanOnAPortWithoutADiskAlertsNobody) {
    put(0, mode_raid1);
    chip.disks[1].raid1_orphan = 1;
    EXPECT_TRUE(view().alerts.empty());
}

TEST_F(status, MirrorMemberBesideABlankDiskAlertsTwiceAndBringsTheRebuildTab) {
    put(0, mode_raid1, 2'000'000, 1'000'000);
    put(1, 0, 1'000'000);
    chip.disks[0].raid1_orphan = 1;
    const view_state shown = view();
    EXPECT_TRUE(shown.disks[0].rebuildbutton);
    EXPECT_EQ(shown.alerts, (std::vector<std::string>{"raid1_degrade_mode", "raid_info_conflict"}));
    EXPECT_TRUE(shown.rebuild_tab_for_choice);
    EXPECT_FALSE(shown.rebuild_running);
}

TEST_F(status, ConflictCountsModesOneToFourAndNoOthers) {
    for (int mode = 0; mode <= 6; ++mode) {
        put(0, mode);
        put(1, 0);
        EXPECT_EQ(!view().alerts.empty(), mode >= 1 && mode <= 4) << mode;
    }
    put(0, 0);
    put(1, 3);
    EXPECT_EQ(view().alerts, std::vector<std::string>{"raid_info_conflict"});
    chip.raid_valid = 1;
    EXPECT_TRUE(view().alerts.empty());
    chip.raid_valid = 0;
    chip.disks[0].present = 0;
    EXPECT_TRUE(view().alerts.empty());
}

TEST_F(status, TwoMembersOfOtherArraysDoNotBringTheRebuildTab) {
    put(0, mode_raid0);
    put(1, mode_span);
    EXPECT_FALSE(view().rebuild_tab_for_choice);
}

TEST_F(status, RunningRebuildPointsAtTheButtonOfItsSource) {
    make_array(mode_raid1);
    chip.polling = true;
    chip.disks[1].rebuild_mark = 1;
    EXPECT_TRUE(view().rebuild_running);
    EXPECT_EQ(view().rebuild_source, 1);
    chip.disks[0].rebuild_mark = 1;
    EXPECT_EQ(view().rebuild_source, 0);
    EXPECT_FALSE(view().rebuild_tab_for_choice);
}

TEST_F(status, SameChipGivesTheSameViewAgain) {
    make_array(mode_raid1);
    const view_state first = view();
    const view_state second = view();
    EXPECT_EQ(first.raidmodelabel, second.raidmodelabel);
    EXPECT_EQ(first.disks[0].caplabel, second.disks[0].caplabel);
}

} // namespace
