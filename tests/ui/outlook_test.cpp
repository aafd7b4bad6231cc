// How the array stands, in words.
#include "app/outlook.h"

#include <QCoreApplication>
#include <QTranslator>
#include <algorithm>
#include <gmock/gmock.h>

#include "app/display_text.h"
#include "app/status_display.h"
#include "app/string_table.h"
#include "tests/support/fixture.h"
#include "tests/ui/window_test.h"

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr std::uint64_t capacity = 3'907'029'168;

class outlooks : public model_test {
protected:
    void SetUp() override {
        model_test::SetUp();
        ASSERT_TRUE(install_language(translator, QStringLiteral("en")));
        table.load(translated);
        put_disk(chip.disks[0], capacity);
        put_disk(chip.disks[1], capacity);
    }

    void TearDown() override {
        QCoreApplication::removeTranslator(&translator);
        model_test::TearDown();
    }

    outlook now() const { return outlook_of(chip, true, table); }

    void array_of(int mode) {
        put_disk(chip.disks[0], capacity, mode, capacity - 16);
        put_disk(chip.disks[1], capacity, mode, capacity - 16);
        chip.raid_valid = 1;
        chip.raid_mode = mode;
    }

    // Only the disk on that port holds the mirror.
    void mirror_on(std::size_t port) {
        put_disk(chip.disks[port], capacity, mode_raid1, capacity - 16);
        chip.disks[port].raid1_orphan = 1;
    }

    void expect_consistent() const {
        const outlook one = now();
        const view_state shown = status_view(&chip, true, table);
        EXPECT_FALSE(one.word.empty() || one.advice.empty());
        EXPECT_EQ(one.advice.find('%'), std::string::npos) << one.advice;
        for (std::size_t port = 0; port < 2; ++port) {
            EXPECT_EQ(one.reasons.rebuild[port].empty(), shown.disks[port].rebuildbutton);
        }
        EXPECT_EQ(one.reasons.clear_array.empty(), shown.clearconfigbutton);
        const bool both_mirrors =
            chip.disks[0].raid_mode == mode_raid1 && chip.disks[1].raid_mode == mode_raid1;
        EXPECT_TRUE(one.sides[0].role.empty() || both_mirrors);
        EXPECT_TRUE(!one.create_is_next || shown.confirmbutton);
        EXPECT_EQ(one.is == verdict::healthy || one.is == verdict::rebuilding,
                  shown.raid_valid && is_array_mode(chip.raid_mode));
    }

    QTranslator translator;
    string_table table;
    krchip chip;
};

TEST_F(outlooks, WithoutDisksTheBaysAreEmpty) {
    chip.disks[0].present = chip.disks[1].present = 0;
    EXPECT_EQ(now().is, verdict::no_disks);
    EXPECT_EQ(now().word, "No disks");
    EXPECT_EQ(now().reasons.create, "Two disks are needed: both bays are empty.");
    EXPECT_FALSE(now().failure);
}

TEST_F(outlooks, OneDiskAloneAsksForASecond) {
    chip.disks[0].present = 0;
    EXPECT_EQ(now().is, verdict::not_configured);
    EXPECT_THAT(now().advice, StartsWith("Bay 1 is empty."));
    EXPECT_EQ(now().reasons.create, "Two disks are needed: bay 1 is empty.");
    EXPECT_FALSE(now().create_is_next);
}

TEST_F(outlooks, TwoPlainDisksAreThereToBeJoined) {
    EXPECT_EQ(now().is, verdict::not_configured);
    EXPECT_TRUE(now().create_is_next);
    EXPECT_THAT(now().advice, HasSubstr("press “Create RAID”"));
    EXPECT_EQ(now().reasons.create, "Choose RAID 0, RAID 1 or span first.");
    EXPECT_EQ(now().reasons.clear_array, "There is no array to delete.");
    EXPECT_EQ(now().reasons.rebuild[1], "Disk 2 holds no copy of a RAID 1.");
    EXPECT_EQ(now().kind_in_use, std::nullopt);
}

TEST_F(outlooks, EveryWholeArrayIsHealthyAndSaysWhatItSurvives) {
    struct kind {
        int mode;
        int row;
        const char* state;
        const char* advice;
    };
    for (const kind& one : {kind{mode_raid0, 0, "There is no second copy.", "If one fails"},
                            kind{mode_raid1, 1, "hold the same data.", "Either disk can fail"},
                            kind{mode_span, 2, "There is no second copy.", "If one fails"}}) {
        array_of(one.mode);
        EXPECT_EQ(now().is, verdict::healthy) << one.mode;
        EXPECT_EQ(now().kind_in_use, one.row) << one.mode;
        EXPECT_THAT(now().state, HasSubstr(one.state)) << one.mode;
        EXPECT_THAT(now().advice, HasSubstr(one.advice)) << one.mode;
        EXPECT_FALSE(now().failure || now().create_is_next) << one.mode;
    }
}

TEST_F(outlooks, OnlyAMirrorSaysThatBothDisksHoldTheSame) {
    array_of(mode_raid1);
    EXPECT_EQ(now().reasons.rebuild[0], "Both disks already hold the same data.");
    array_of(mode_span);
    EXPECT_EQ(now().reasons.rebuild[0], "The disks form an array that keeps no second copy.");
}

// A record may name a kind that nobody makes.
TEST_F(outlooks, KindThatIsNoneIsNotConfigured) {
    array_of(3);
    EXPECT_EQ(now().is, verdict::not_configured);
    EXPECT_FALSE(now().create_is_next);
    EXPECT_THAT(now().advice, HasSubstr("a kind of array that this program does not know"));
    EXPECT_EQ(now().kind_in_use, std::nullopt);
    EXPECT_THAT(now().state, IsEmpty());
}

TEST_F(outlooks, MirrorWithoutItsOtherDiskSaysWhichAndHowLarge) {
    mirror_on(1);
    chip.disks[0].present = 0;
    EXPECT_EQ(now().is, verdict::degraded);
    EXPECT_EQ(now().advice,
              "Disk 1 is missing, so there is only one copy, on Disk 2. Insert a disk "
              "of at least 2.00\u00A0TB into bay 1; you can then rebuild.");
    EXPECT_EQ(now().reasons.rebuild[1], "Bay 1 is empty: there is no disk to copy onto.");
    EXPECT_EQ(now().reasons.clear_array,
              "Only a complete array can be deleted. Clearing a disk erases what is on it.");
    EXPECT_TRUE(now().failure);
}

TEST_F(outlooks, MirrorBesideAFreshDiskNamesTheButton) {
    mirror_on(0);
    EXPECT_THAT(now().advice, HasSubstr("onto Disk 2 with “Rebuild->”; everything on Disk 2"));
    EXPECT_THAT(now().reasons.rebuild[0], IsEmpty());
    put_disk(chip.disks[0], capacity);
    mirror_on(1);
    EXPECT_THAT(now().advice, HasSubstr("onto Disk 1 with “<-Rebuild”; everything on Disk 1"));
}

TEST_F(outlooks, DiskTooSmallForACopyIsNamedWithTheMissingSectors) {
    mirror_on(0);
    chip.disks[1].capacity = capacity - 16;
    EXPECT_THAT(now().reasons.rebuild[0], IsEmpty());
    chip.disks[1].capacity = capacity - 17;
    EXPECT_THAT(now().advice, HasSubstr("Disk 2 is too small for a second one"));
    EXPECT_EQ(now().reasons.rebuild[0], "Disk 2 is too small by 1 sectors.");
}

TEST_F(outlooks, TwoCopiesThatDifferNameTheLaterRecord) {
    array_of(mode_raid1);
    chip.raid_valid = 0;
    chip.disks[0].rebuild_role = 2;
    chip.disks[1].rebuild_role = 1;
    std::copy_n("20261121085500", 14, chip.disks[1].raid_time.begin());
    EXPECT_EQ(now().is, verdict::copies_differ);
    EXPECT_THAT(now().advice, HasSubstr("the record on Disk 2 is the more recent"));
    EXPECT_EQ(now().sides[1].record, "record 2026-11-21 08:55");
    EXPECT_THAT(now().sides[0].record, IsEmpty());
}

// The disk that was to be overwritten may be the one with the later record then.
TEST_F(outlooks, TheLaterRecordOfARebuildThatAPowerCutPreventedIsNotCalledTheMoreRecent) {
    array_of(mode_raid1);
    chip.raid_valid = 0;
    krdisk& later = chip.disks[1];
    later.rebuild_role = 1;
    chip.disks[0].identify_serial_raw[0] = 'A';
    later.partner_serial_raw[0] = 'A';
    EXPECT_THAT(now().advice, HasSubstr("do not match"));
    later.raid_time.back() = 2; // written to without its partner
    EXPECT_THAT(now().advice, HasSubstr("the record on Disk 2 is the more recent"));
}

TEST_F(outlooks, CopiesAreOfTheSameMirrorOnlyWhenTheirRecordsSaySo) {
    array_of(mode_raid1);
    chip.raid_valid = 0;
    chip.disks[0].rebuild_role = 1;
    chip.disks[1].rebuild_role = 2;
    EXPECT_THAT(now().advice, HasSubstr("a copy of the same RAID 1"));
    chip.disks[1].partner_serial_raw[0] = 'X';
    EXPECT_THAT(now().advice, HasSubstr("do not match"));
    chip.disks[0].identify_serial_raw[0] = 'X';
    EXPECT_THAT(now().advice, HasSubstr("a copy of the same RAID 1"));
    chip.disks[0].raid_capacity -= 1;
    EXPECT_THAT(now().advice, HasSubstr("do not match"));
}

TEST_F(outlooks, StrayMarkOnAStripeCopiesNothing) {
    array_of(mode_raid0);
    chip.rebuild_pending = 1;
    chip.disks[0].rebuild_mark = 1;
    EXPECT_THAT(now().state, IsEmpty());
    EXPECT_THAT(now().advice, HasSubstr("spread over both disks"));
    EXPECT_THAT(now().sides[0].role, IsEmpty());
}

TEST_F(outlooks, HalfOfAStripeIsBrokenAndNamesTheDiskToKeep) {
    put_disk(chip.disks[1], capacity, mode_raid0, capacity - 16);
    chip.disks[1].member_mismatch = 1;
    EXPECT_EQ(now().is, verdict::broken);
    EXPECT_THAT(now().advice, HasSubstr("Clear Disk 2 only if"));
    chip.disks[0].present = 0;
    EXPECT_THAT(now().advice, HasSubstr("Clear Disk 2 only if"));
    EXPECT_TRUE(now().failure);
}

TEST_F(outlooks, HalvesOfTwoArraysDoNotMatch) {
    array_of(mode_raid0);
    chip.raid_valid = 0;
    chip.disks[0].member_mismatch = chip.disks[1].member_mismatch = 1;
    EXPECT_THAT(now().advice, StartsWith("The records on the two disks do not match."));
}

TEST_F(outlooks, MirrorBesideHalfAStripeIsBroken) {
    mirror_on(0);
    put_disk(chip.disks[1], capacity, mode_raid0, capacity - 16);
    chip.disks[1].member_mismatch = 1;
    EXPECT_EQ(now().is, verdict::broken);
    EXPECT_THAT(now().advice, StartsWith("Disk 1 holds a complete copy of a RAID 1, Disk 2 half"));
}

TEST_F(outlooks, RunningRebuildNamesTheDiskThatHoldsAllData) {
    array_of(mode_raid1);
    chip.rebuild_pending = 1;
    chip.polling = true;
    chip.disks[1].rebuild_mark = 1;
    EXPECT_EQ(now().is, verdict::rebuilding);
    EXPECT_EQ(now().state, "Disk 2 is being copied onto Disk 1.");
    EXPECT_THAT(now().advice, HasSubstr("only Disk 2 holds all the data"));
    EXPECT_EQ(now().sides[0].role, "target");
    EXPECT_EQ(now().sides[1].role, "source");
    EXPECT_EQ(now().reasons.rebuild[0], "A rebuild is running.");
    EXPECT_EQ(now().reasons.create, "A rebuild is running.");
}

TEST_F(outlooks, WithoutAChipEveryButtonSaysWhy) {
    const outlook none = outlook_without_enclosure(table);
    EXPECT_EQ(none.word, "No enclosure");
    EXPECT_EQ(none.reasons.create, "No enclosure is connected.");
    EXPECT_EQ(none.reasons.rebuild[1], none.reasons.create);
    const outlook busy = outlook_while_scanning(table);
    EXPECT_EQ(busy.word, "Scanning");
    EXPECT_EQ(busy.reasons.clear_array, "The enclosures are being read.");
}

// Whatever two disks and their records may say.
TEST_F(outlooks, HoldTogetherForEveryPairOfRecords) {
    for (const int mode0 : {0, 1, 2, 3, 4, 5, 255}) {
        for (const int mode1 : {0, 1, 2, 3, 4, 5, 255}) {
            for (unsigned bits = 0; bits < 64; ++bits) {
                chip = krchip();
                put_disk(chip.disks[0], capacity, mode0, capacity - 16);
                put_disk(chip.disks[1], capacity - 4ULL * (bits & 1), mode1, capacity - 17);
                chip.disks[0].present = (bits >> 1) & 1;
                chip.disks[1].present = (bits >> 2) & 1;
                chip.disks[0].rebuild_mark = (bits >> 3) & 1;
                chip.disks[1].rebuild_mark = (bits >> 4) & 1;
                chip.disks[1].raid_time[0] = static_cast<unsigned char>((bits >> 5) & 1);
                chip.read_raid_combined_info();
                SCOPED_TRACE(testing::Message() << mode0 << " " << mode1 << " bits " << bits);
                expect_consistent();
            }
        }
    }
}

TEST(record_times, AreShownOnlyWhenTheyAreTimes) {
    std::array<unsigned char, raid_time_size> stamp{};
    EXPECT_EQ(time_of_record(stamp), "");
    std::copy_n("20261121085500", 14, stamp.begin());
    EXPECT_EQ(time_of_record(stamp), "2026-11-21 08:55");
    for (std::size_t place = 0; place < 14; ++place) {
        auto hostile = stamp;
        hostile[place] = 0xFF;
        EXPECT_EQ(time_of_record(hostile), "") << place;
    }
    for (const char* no_time : {"20261321085500", "20260021085500", "20261100085500",
                                "20261132085500", "20261121245500", "20261121086000"}) {
        std::copy_n(no_time, 14, stamp.begin());
        EXPECT_EQ(time_of_record(stamp), "") << no_time;
    }
}

TEST(filled_texts, TakeEveryValueOnceAndLeaveTheirContentsAlone) {
    EXPECT_EQ(filled("%2 onto %1, %2", {"a", "b"}), "b onto a, b");
    EXPECT_EQ(filled("%1 and %2", {"%2", "x"}), "%2 and x");
    EXPECT_EQ(filled("100% of %3 %", {"a"}), "100% of %3 %");
    EXPECT_EQ(filled("", {"a"}), "");
}

} // namespace
