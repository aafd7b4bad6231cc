// The way of the Tab key through the window.
#include <QLabel>
#include <QTreeView>
#include <algorithm>
#include <gmock/gmock.h>

#include "app/radio_matrix.h"
#include "tests/ui/focus_window.h"

namespace {

using testing::ElementsAreArray;

class focus_order : public focus_window {
protected:
    // All that the key leads to, from the background once round.
    lines walk(Qt::Key key) {
        constexpr std::size_t more_than_there_are = 40;
        window->mainview->setFocus();
        lines stops;
        press(key);
        while (stops.size() < more_than_there_are && (stops.empty() || focus() != stops.front())) {
            stops.push_back(focus());
            press(key);
        }
        return stops;
    }

    // What both pages and both tabs begin and end with stands round these.
    void expect_round(const lines& between) {
        lines stops = {"controllerselectbox", "refresh_button", "mainguibutton",
                       "showdiskguibutton"};
        stops.insert(stops.end(), between.begin(), between.end());
        stops.insert(stops.end(), {"minimizebutton", "closebutton"});
        EXPECT_THAT(walk(Qt::Key_Tab), ElementsAreArray(stops));
        std::reverse(stops.begin(), stops.end());
        EXPECT_THAT(walk(Qt::Key_Backtab), ElementsAreArray(stops));
    }
};

TEST_F(focus_order, OfTheEmptyWindow) {
    window->cleargui();
    expect_round({"tabs"});
}

TEST_F(focus_order, OfTheConfigurationTab) {
    enable_everything();
    expect_round({"guide_link", "tabs", "raidconfigradiobutton_row0", "cleardisk0button",
                  "cleardisk1button", "confirmbutton", "clearconfigbutton"});
}

TEST_F(focus_order, OfTheRebuildTab) {
    enable_everything();
    window->outlets.select(window->tabview, 1);
    expect_round({"guide_link", "tabs", "rebuild0to1button", "rebuild1to0button"});
}

TEST_F(focus_order, OfTheRebuildTabWithNothingToChoose) {
    enable_everything();
    window->outlets.select(window->tabview, 1);
    window->disablegui(false);
    expect_round({"guide_link", "tabs"});
}

TEST_F(focus_order, OfTheSecondPage) {
    enable_everything();
    window->switchguishowdisk();
    expect_round({"tree", "warmbootbutton"});
}

TEST_F(focus_order, OfTheSecondPageWithoutAnEnclosure) {
    window->cleargui();
    window->switchguishowdisk();
    expect_round({});
}

TEST_F(focus_order, ArrowKeysChooseAmongTheRowsWhichAreOneStop) {
    show_chip([](krchip&) {});
    window->update_raid_information();
    window->raidconfigradiobutton->button(0)->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    EXPECT_EQ(focus(), "raidconfigradiobutton_row1");
    EXPECT_EQ(window->raidconfigradiobutton->selected_row(), 1);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Up);
    EXPECT_EQ(window->raidconfigradiobutton->selected_row(), 2);
    expect_round({"tabs", "raidconfigradiobutton_row2"});
}

TEST_F(focus_order, ArrowKeysWalkThroughTheTree) {
    tree_data.addchipFirewire(false);
    tree_data.addraid(0, "array");
    tree_data.adddisk(0, "M0", true);
    window->refreshtree();
    window->expandtree();
    enable_everything();
    window->switchguishowdisk();
    window->tree->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(window->tree->currentIndex().data().toString(), QStringLiteral("M0"));
    press(Qt::Key_Up);
    EXPECT_EQ(window->tree->currentIndex().data().toString(), QStringLiteral("array"));
    EXPECT_EQ(focus(), "tree");
}

TEST_F(focus_order, LabelsNeverTakeTheFocus) {
    const QList<QLabel*> labels = window->mainwindow->findChildren<QLabel*>();
    ASSERT_FALSE(labels.isEmpty());
    for (const QLabel* label : labels) {
        const bool link = label->textInteractionFlags().testFlag(Qt::LinksAccessibleByKeyboard);
        EXPECT_TRUE(link || label->focusPolicy() == Qt::NoFocus)
            << label->objectName().toStdString();
    }
}

} // namespace
