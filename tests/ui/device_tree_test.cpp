// The data of the device tree, and how the outline shows it.
#include <QAbstractItemModelTester>
#include <QTreeView>
#include <gmock/gmock.h>

#include "app/tree_model.h"
#include "tests/ui/window_test.h"

namespace {

using testing::IsEmpty;

class tree_data_test : public testing::Test {
protected:
    const tree_node* chip(int index) const { return data.child(index, nullptr); }

    table_lookup texts;
    treeview data{texts};
};

TEST_F(tree_data_test, WithoutChipsHasNoRows) {
    EXPECT_EQ(data.numberOfChildrenOfItem(nullptr), 0);
    EXPECT_FALSE(data.isItemExpandable(nullptr));
    EXPECT_EQ(data.objectValueForTableColumn(0, nullptr), "Root");
    EXPECT_EQ(data.child(0, nullptr), nullptr);
}

TEST_F(tree_data_test, ChipBranchesAreNumberedInTheirOrderAndNamedByTheirBus) {
    texts.set("device", "Gerät");
    testing::internal::CaptureStdout();
    data.addchipFirewire(false);
    data.addchipFirewire(true);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "addedadded");
    EXPECT_EQ(data.objectValueForTableColumn(0, chip(0)), "Gerät 1 (USB)");
    EXPECT_EQ(data.objectValueForTableColumn(0, chip(1)), "Gerät 2 (1394)");
}

TEST_F(tree_data_test, ArrayWithBothDisksHangsUnderItsChip) {
    data.addchipFirewire(false);
    data.addraid(0, "Bridge (SN: 1)");
    data.adddisk(0, "M0: A", true);
    data.adddisk(0, "M1: B", true);
    ASSERT_EQ(data.numberOfChildrenOfItem(chip(0)), 1);
    const tree_node* array = data.child(0, chip(0));
    EXPECT_EQ(data.objectValueForTableColumn(0, array), "Bridge (SN: 1)");
    ASSERT_EQ(data.numberOfChildrenOfItem(array), 2);
    EXPECT_EQ(data.objectValueForTableColumn(0, data.child(0, array)), "M0: A");
    EXPECT_EQ(data.objectValueForTableColumn(0, data.child(1, array)), "M1: B");
    EXPECT_EQ(data.numberOfChildrenOfItem(data.child(1, array)), 0);
    EXPECT_TRUE(data.isItemExpandable(array));
    EXPECT_FALSE(data.isItemExpandable(data.child(1, array)));
}

TEST_F(tree_data_test, SingleDiskOnPortOneHangsUnderItsChip) {
    data.addchipFirewire(false);
    data.adddisk(0, "P1: B", false);
    ASSERT_EQ(data.numberOfChildrenOfItem(chip(0)), 1);
    EXPECT_EQ(data.objectValueForTableColumn(0, data.child(0, chip(0))), "P1: B");
}

TEST_F(tree_data_test, ChipWithOnlyItsLabelIsNotExpandable) {
    data.addchipFirewire(false);
    EXPECT_EQ(data.numberOfChildrenOfItem(chip(0)), 0);
    EXPECT_FALSE(data.isItemExpandable(chip(0)));
}

TEST_F(tree_data_test, ClearedTreeBeginsAgainAtOne) {
    data.addchipFirewire(false);
    data.cleartree();
    EXPECT_THAT(data.getdata(), IsEmpty());
    data.addchipFirewire(true);
    EXPECT_EQ(data.objectValueForTableColumn(0, chip(0)), "device 1 (1394)");
}

TEST_F(tree_data_test, PositionsThatAreNotThereAreIgnored) {
    data.addchipFirewire(false);
    for (const std::int32_t position : {-1, 1, 2147483647}) {
        data.addraid(position, "nowhere");
        data.adddisk(position, "nowhere", false);
    }
    data.adddisk(0, "no array to be in", true);
    EXPECT_EQ(data.numberOfChildrenOfItem(chip(0)), 0);
    EXPECT_EQ(data.child(-1, nullptr), nullptr);
    EXPECT_EQ(data.child(1, nullptr), nullptr);
}

TEST_F(tree_data_test, LabelsOfDevicesAreLatin1) {
    data.addchipFirewire(false);
    data.adddisk(0, "P0: \xE4", false);
    EXPECT_EQ(data.objectValueForTableColumn(0, data.child(0, chip(0))), "P0: \xC3\xA4");
}

// The rows of the outline, two blanks of indent per level.
QStringList rows(const QAbstractItemModel& model, const QModelIndex& parent = {}, int level = 0) {
    QStringList shown;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        shown += QString(qsizetype{2} * level, QLatin1Char(' ')) + index.data().toString();
        shown += rows(model, index, level + 1);
    }
    return shown;
}

class outline : public tree_data_test {
protected:
    void SetUp() override {
        data.addchipFirewire(false);
        data.addraid(0, "array");
        data.adddisk(0, "M0", true);
        data.adddisk(0, "M1", true);
        data.addchipFirewire(true);
        data.adddisk(1, "P1", false);
    }
    void show() { model.set_data_source(std::make_unique<const treeview>(data)); }

    tree_model model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(outline, ShowsBranchesAndLeavesInTheirPlaces) {
    show();
    EXPECT_EQ(rows(model), (QStringList{"device 1 (USB)", "  array", "    M0", "    M1",
                                        "device 2 (1394)", "  P1"}));
    EXPECT_EQ(model.columnCount(), 1);
}

TEST_F(outline, HasOneNamedColumn) {
    model.set_heading("Devices");
    EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("Devices"));
    EXPECT_EQ(model.headerData(0, Qt::Vertical, Qt::DisplayRole), QVariant());
}

TEST_F(outline, ShowsNothingWithoutASource) {
    show();
    model.set_data_source(nullptr);
    EXPECT_EQ(rows(model), QStringList());
}

// The tester of the fixture ends the test where the model breaks a rule of its kind.
TEST_F(outline, KeepsTheRulesOfModelsFromEmptyToFullAndBack) {
    treeview full = data;
    data.cleartree();
    show();
    QAbstractItemModelTester while_empty(&model,
                                         QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (int round = 0; round < 3; ++round) {
        model.set_data_source(std::make_unique<const treeview>(full));
        EXPECT_EQ(rows(model).size(), 6 + round);
        model.set_data_source(std::make_unique<const treeview>(data));
        EXPECT_EQ(rows(model).size(), 0);
        full.adddisk(1, "one more", false);
    }
}

TEST_F(outline, KeepsWhatItShowsWhileTheDataChanges) {
    show();
    data.cleartree();
    EXPECT_EQ(rows(model).size(), 6);
    show();
    EXPECT_EQ(rows(model), QStringList());
}

TEST_F(outline, ShowsControlCharactersAsBlanksAndMarkupAsItStands) {
    data.cleartree();
    data.addchipFirewire(false);
    data.adddisk(0, "P0: <b>\t\n&", false);
    show();
    EXPECT_EQ(rows(model)[1], QStringLiteral("  P0: <b>  &"));
}

TEST_F(window_test, RefreshedTreeOfTheWindowIsFullyExpanded) {
    tree_data.addchipFirewire(false);
    tree_data.addraid(0, "array");
    tree_data.adddisk(0, "M0", true);
    on_other_thread([this] {
        window->refreshtree();
        window->expandtree();
    });
    const QAbstractItemModel* model = window->tree->model();
    EXPECT_EQ(rows(*model), (QStringList{"device 1 (USB)", "  array", "    M0"}));
    const QModelIndex chip = model->index(0, 0);
    EXPECT_TRUE(window->tree->isExpanded(chip));
    EXPECT_TRUE(window->tree->isExpanded(model->index(0, 0, chip)));
}

} // namespace
