// The plan of a change in the words of the English table.
#include "app/plan_text.h"

#include <QCoreApplication>
#include <QTranslator>
#include <gmock/gmock.h>

#include "app/string_table.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class plan_words : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(install_language(translator, QStringLiteral("en")));
        table.load(translated);
        plan.enclosure = "Kestrel Duo (S/N: ABC123)";
        plan.has_chip = true;
        plan.disks = {disk("FIRST", "A1"), disk("SECOND", "B2")};
    }
    void TearDown() override { QCoreApplication::removeTranslator(&translator); }

    static planned_disk disk(const char* model, const char* serial) {
        planned_disk one;
        one.present = true;
        one.model = model;
        one.serial = serial;
        one.capacity = 3'907'029'168;
        return one;
    }
    plan_view view() const { return describe(plan, true, table); }
    std::string heading(array_change what, int mode = 0) {
        plan.what = what;
        plan.mode = mode;
        return view().heading;
    }
    plan_card card(disk_fate fate) {
        plan.disks[0].fate = fate;
        return view().cards[0];
    }

    QTranslator translator;
    string_table table;
    change_plan plan;
};

TEST_F(plan_words, TellWhatWillBeDone) {
    EXPECT_EQ(heading(array_change::create, mode_raid0), "Creates a new array: RAID 0.");
    EXPECT_EQ(heading(array_change::create, mode_raid1), "Creates a new array: RAID 1.");
    EXPECT_EQ(heading(array_change::create, mode_span), "Creates a new array: Span.");
    EXPECT_EQ(heading(array_change::clear_array), "Deletes the array.");
    EXPECT_EQ(heading(array_change::clear_disk0), "Clears Disk 1.");
    EXPECT_EQ(heading(array_change::clear_disk1), "Clears Disk 2.");
    EXPECT_EQ(heading(array_change::rebuild0to1), "Copies Disk 1 onto Disk 2.");
    EXPECT_EQ(heading(array_change::rebuild1to0), "Copies Disk 2 onto Disk 1.");
}

TEST_F(plan_words, TellWhatBecomesOfADisk) {
    EXPECT_EQ(card(disk_fate::untouched).fate, "nothing is written");
    EXPECT_EQ(card(disk_fate::all_lost).fate, "loses all data");
    EXPECT_EQ(card(disk_fate::keeps_data).fate, "keeps its data, leaves the array");
    EXPECT_EQ(card(disk_fate::read).fate, "is read, keeps its data");
    EXPECT_EQ(card(disk_fate::overwritten).fate, "is overwritten, all data lost");
}

TEST_F(plan_words, AreAsGraveAsWhatTheyTell) {
    EXPECT_EQ(card(disk_fate::untouched).tone, fate_tone::calm);
    EXPECT_EQ(card(disk_fate::all_lost).tone, fate_tone::lost);
    EXPECT_EQ(card(disk_fate::keeps_data).tone, fate_tone::kept);
    EXPECT_EQ(card(disk_fate::read).tone, fate_tone::kept);
    EXPECT_EQ(card(disk_fate::overwritten).tone, fate_tone::lost);
}

TEST_F(plan_words, TellWhichDiskItIs) {
    const plan_view shown = view();
    EXPECT_EQ(shown.enclosure, "Kestrel Duo (S/N: ABC123)");
    EXPECT_TRUE(shown.cards[0].present);
    EXPECT_EQ(shown.cards[0].bay, "Disk 1");
    EXPECT_EQ(shown.cards[0].model, "FIRST");
    EXPECT_EQ(shown.cards[0].serial, "S/N A1");
    EXPECT_EQ(shown.cards[0].size, "2.00 TB");
    EXPECT_EQ(shown.cards[1].bay, "Disk 2");
    EXPECT_EQ(shown.cards[1].model, "SECOND");
    EXPECT_EQ(shown.cards[1].serial, "S/N B2");
}

TEST_F(plan_words, CountASizeInTheUnitsOfTheSystem) {
    EXPECT_EQ(describe(plan, false, table).cards[0].size, "1863 GB");
}

TEST_F(plan_words, TellOfAnEmptyBay) {
    plan.disks[1] = {};
    const plan_card shown = view().cards[1];
    EXPECT_FALSE(shown.present);
    EXPECT_EQ(shown.tone, fate_tone::calm);
    EXPECT_EQ(shown.bay, "Disk 2");
    EXPECT_EQ(shown.model, "empty bay");
    EXPECT_EQ(shown.serial, "");
    EXPECT_EQ(shown.size, "");
    EXPECT_EQ(shown.fate, "nothing is written");
    EXPECT_THAT(shown.warnings, IsEmpty());
}

TEST_F(plan_words, WarnOfWhatTheUserHasToKnow) {
    plan.disks[0].missing_sectors = 344;
    plan.disks[0].record_inside_mirror = true;
    plan.disks[0].larger_than_used = true;
    plan.disks[0].foreign_sectors = true;
    EXPECT_THAT(card(disk_fate::overwritten).warnings,
                ElementsAre("Too small by 344 sectors.",
                            "The copy reaches the place of its RAID record.",
                            "Only part of this disk is used: its RAID record is not at the end.",
                            "Its sectors are not 512 bytes long."));
    EXPECT_THAT(view().cards[1].warnings, IsEmpty());
}

TEST_F(plan_words, PointAtTheDiskThatIsOverwritten) {
    plan.disks[0].fate = disk_fate::read;
    plan.disks[1].fate = disk_fate::overwritten;
    EXPECT_EQ(view().arrow, plan_arrow::to_disk2);
    EXPECT_EQ(view().arrow_word, "overwrites");
    std::swap(plan.disks[0].fate, plan.disks[1].fate);
    EXPECT_EQ(view().arrow, plan_arrow::to_disk1);
    EXPECT_EQ(view().arrow_word, "overwrites");
}

TEST_F(plan_words, PointNowhereWhenNothingIsCopied) {
    for (const disk_fate fate :
         {disk_fate::untouched, disk_fate::all_lost, disk_fate::keeps_data}) {
        plan.disks[0].fate = plan.disks[1].fate = fate;
        EXPECT_EQ(view().arrow, plan_arrow::none);
        EXPECT_EQ(view().arrow_word, "");
    }
}

TEST_F(plan_words, ShowBytesOfADiskThatAreNoText) {
    plan.disks[0].model = "<b>\xE9\xFF";
    EXPECT_EQ(view().cards[0].model, "<b>\u00E9\u00FF");
}

TEST_F(plan_words, ReadAsOneLinePerDisk) {
    plan.what = array_change::rebuild0to1;
    plan.disks[0].fate = disk_fate::read;
    plan.disks[1].fate = disk_fate::overwritten;
    plan.disks[1].missing_sectors = 344;
    plan.disks[1].foreign_sectors = true;
    EXPECT_EQ(as_lines(view()), "Copies Disk 1 onto Disk 2.\n"
                                "Kestrel Duo (S/N: ABC123)\n"
                                "Disk 1: FIRST, S/N A1, 2.00 TB: is read, keeps its data\n"
                                "Disk 2: SECOND, S/N B2, 2.00 TB: is overwritten, all data lost. "
                                "Too small by 344 sectors. Its sectors are not 512 bytes long.\n");
}

TEST_F(plan_words, ReadAnEmptyBayWithoutASizeAndANumber) {
    plan.what = array_change::clear_disk0;
    plan.disks[0].fate = disk_fate::all_lost;
    plan.disks[1] = {};
    EXPECT_EQ(as_line(view().cards[1]), "Disk 2: empty bay: nothing is written");
    EXPECT_EQ(as_lines(view()), "Clears Disk 1.\n"
                                "Kestrel Duo (S/N: ABC123)\n"
                                "Disk 1: FIRST, S/N A1, 2.00 TB: loses all data\n"
                                "Disk 2: empty bay: nothing is written\n");
}

} // namespace
