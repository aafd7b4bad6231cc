// Who may bring which tab to the front.
#include <QAccessible>
#include <QTest>
#include <QWheelEvent>
#include <gmock/gmock.h>

#include "app/gated_tab_bar.h"
#include "app/text_field.h"
#include "tests/ui/window_test.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* refusal = "panel attention [attention] two_raid1_disks_for_rebuild (ok)";

class tab_gate : public window_test {
protected:
    // A chip whose pair can be rebuilt, or not.
    void put_pair(bool rebuildable) {
        show_chip([rebuildable](krchip& chip) { chip.rebuild_possible = rebuildable ? 1 : 0; });
    }
    void click(int index) {
        gated_tab_bar* bar = window->tabview->bar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(index).center());
    }
    void turn_wheel(int delta) {
        gated_tab_bar* bar = window->tabview->bar();
        const QPointF place = bar->tabRect(0).center();
        QWheelEvent event(place, bar->mapToGlobal(place), {}, QPoint(0, delta), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(bar, &event);
    }
    void press_key(Qt::Key key) { QTest::keyClick(window->tabview->bar(), key); }
    void press_control_tab() { QTest::keyClick(window->tabview, Qt::Key_Tab, Qt::ControlModifier); }
    // As a screen reader does it.
    void press_through_assistance(int index) {
        QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(window->tabview->bar());
        ASSERT_NE(bar, nullptr);
        bar->child(index)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
    // The page, and the tab that is drawn in front.
    std::pair<int, int> front() const {
        return {window->tabview->selected(), window->tabview->bar()->currentIndex()};
    }
    const std::pair<int, int> configuration{0, 0};
    const std::pair<int, int> rebuild{1, 1};
};

TEST_F(tab_gate, RefusesTheRebuildTabWithNoDeviceAttached) {
    click(1);
    EXPECT_THAT(take_panels(), ElementsAre(refusal));
    EXPECT_EQ(front(), configuration);
}

TEST_F(tab_gate, TabInFrontStaysThereWhileTheRefusalIsShown) {
    std::pair<int, int> meanwhile{-1, -1};
    panels.while_open([&] { meanwhile = front(); });
    click(1);
    press_through_assistance(1);
    EXPECT_EQ(meanwhile, configuration);
}

TEST_F(tab_gate, RefusesAPairWithoutAMirrorMember) {
    put_pair(false);
    click(1);
    EXPECT_THAT(take_panels(), ElementsAre(refusal));
    EXPECT_EQ(front(), configuration);
}

TEST_F(tab_gate, RefusesAControllerThatIsNotInTheList) {
    put_pair(true);
    {
        const lock_scope lock(j.records);
        j.current = usb_identity(0x77);
    }
    click(1);
    EXPECT_THAT(take_panels(), ElementsAre(refusal));
}

TEST_F(tab_gate, GrantsAPairOfWhichOnlyOneIsAMirrorMember) {
    take_chip(member_a(mode_raid1), memory_disk(disk_b()));
    click(1);
    EXPECT_THAT(take_panels(), IsEmpty());
    EXPECT_EQ(front(), rebuild);
}

TEST_F(tab_gate, AlwaysGrantsTheConfigurationTab) {
    put_pair(true);
    click(1);
    put_pair(false);
    click(0);
    EXPECT_EQ(front(), configuration);
    EXPECT_THAT(take_panels(), IsEmpty());
}

TEST_F(tab_gate, HoldsForTheWheel) {
    turn_wheel(-120);
    EXPECT_THAT(take_panels(), ElementsAre(refusal));
    EXPECT_EQ(front(), configuration);
    put_pair(true);
    turn_wheel(-120);
    EXPECT_EQ(front(), rebuild);
    turn_wheel(-120);
    EXPECT_EQ(front(), rebuild);
    turn_wheel(120);
    EXPECT_EQ(front(), configuration);
}

TEST_F(tab_gate, HoldsForTheKeys) {
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_End}) {
        press_key(key);
        EXPECT_THAT(take_panels(), ElementsAre(refusal));
        EXPECT_EQ(front(), configuration);
    }
    put_pair(true);
    press_key(Qt::Key_Right);
    EXPECT_EQ(front(), rebuild);
    press_key(Qt::Key_Left);
    EXPECT_EQ(front(), configuration);
    press_key(Qt::Key_End);
    EXPECT_EQ(front(), rebuild);
    press_key(Qt::Key_Home);
    EXPECT_EQ(front(), configuration);
}

TEST_F(tab_gate, HoldsForControlTab) {
    press_control_tab();
    EXPECT_THAT(take_panels(), ElementsAre(refusal));
    EXPECT_EQ(front(), configuration);
    put_pair(true);
    press_control_tab();
    EXPECT_EQ(front(), rebuild);
    press_control_tab();
    EXPECT_EQ(front(), configuration);
}

TEST_F(tab_gate, HoldsForAssistivePrograms) {
    press_through_assistance(1);
    EXPECT_THAT(take_panels(), ElementsAre(refusal));
    EXPECT_EQ(front(), configuration);
    put_pair(true);
    press_through_assistance(1);
    EXPECT_EQ(front(), rebuild);
}

TEST_F(tab_gate, HoldsForTheDisplayItself) {
    window->outlets.select(window->tabview, 1);
    EXPECT_THAT(take_panels(), ElementsAre(refusal));
    EXPECT_EQ(front(), configuration);
}

TEST_F(tab_gate, RefusesARefusedTabAgain) {
    click(1);
    click(1);
    EXPECT_THAT(take_panels(), ElementsAre(refusal, refusal));
}

} // namespace
