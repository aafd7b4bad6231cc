// The ring around the control that has the focus.
#include <QImage>
#include <QTreeView>
#include <gtest/gtest.h>

#include "app/controller_box.h"
#include "app/focus_ring.h"
#include "app/gated_tab_bar.h"
#include "app/radio_matrix.h"
#include "tests/ui/focus_window.h"

namespace {

constexpr QRgb ring_colour = 0xffb9e6fa;

class ring : public focus_window {
protected:
    void SetUp() override {
        focus_window::SetUp();
        enable_everything();
    }

    QRect in_window(const QWidget* widget, const QRect& part) const {
        return {widget->mapTo(window->mainwindow, part.topLeft()), part.size()};
    }

    // Whether two pixels of the ring, and no more, run along the middle of each side of the area,
    // with two others between them and it.
    void expect_around(const QRect& area) const {
        // Small pictures: the toolkit makes large ones with threads of its own.
        const auto on_ring = [this](const QPoint& at) {
            const QRect dot(at, QSize(1, 1));
            return window->mainwindow->grab(dot).toImage().pixel(0, 0) == ring_colour;
        };
        const QPoint middle = area.center();
        for (int out = 1; out <= 5; ++out) {
            const bool expected = out == 3 || out == 4;
            EXPECT_EQ(on_ring({middle.x(), area.top() - out}), expected) << "above, " << out;
            EXPECT_EQ(on_ring({middle.x(), area.bottom() + out}), expected) << "below, " << out;
            EXPECT_EQ(on_ring({area.left() - out, middle.y()}), expected) << "left, " << out;
            EXPECT_EQ(on_ring({area.right() + out, middle.y()}), expected) << "right, " << out;
        }
    }
    void expect_around_when_focused(QWidget* control, const QWidget* seen = nullptr) const {
        SCOPED_TRACE(control->objectName().toStdString());
        control->setFocus(Qt::TabFocusReason);
        const QWidget* area = seen != nullptr ? seen : control;
        expect_around(in_window(area, area->rect()));
    }
    bool shown() const {
        const auto* frame = window->mainwindow->findChild<QFocusFrame*>();
        return frame != nullptr && frame->isVisible();
    }
};

TEST_F(ring, SurroundsEveryControlOfTheConfigurationTab) {
    for (QWidget* control : std::initializer_list<QWidget*>{
             window->controllerselectbox, window->refresh_button, window->mainguibutton,
             window->showdiskguibutton, window->cleardisk0button, window->cleardisk1button,
             window->confirmbutton, window->clearconfigbutton, window->minimizebutton,
             window->closebutton}) {
        expect_around_when_focused(control);
    }
}

TEST_F(ring, SurroundsBothDirections) {
    window->outlets.select(window->tabview, 1);
    expect_around_when_focused(window->rebuild0to1button);
    expect_around_when_focused(window->rebuild1to0button);
}

TEST_F(ring, SurroundsTheControlsOfTheSecondPage) {
    window->switchguishowdisk();
    expect_around_when_focused(window->tree);
    expect_around_when_focused(window->extras->warmbootbutton);
}

TEST_F(ring, SurroundsTheWholeRow) {
    for (int row = 0; row < radio_matrix::rows; ++row) {
        QWidget* button = window->raidconfigradiobutton->button(row);
        expect_around_when_focused(button, button->parentWidget());
    }
}

TEST_F(ring, FollowsTheArrowKeysAmongTheRows) {
    window->raidconfigradiobutton->button(0)->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    const QWidget* row = window->raidconfigradiobutton->button(1)->parentWidget();
    expect_around(in_window(row, row->rect()));
}

TEST_F(ring, SurroundsTheTabInFrontAndNotItsBar) {
    gated_tab_bar* bar = window->tabview->bar();
    bar->setFocus(Qt::TabFocusReason);
    expect_around(in_window(bar, bar->tabRect(0)));
    press(Qt::Key_Right);
    expect_around(in_window(bar, bar->tabRect(1)));
}

TEST_F(ring, IsNotShownAfterAClickAndComesWithTheNextKey) {
    window->refresh_button->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(shown());
    QTest::mousePress(window->mainguibutton, Qt::LeftButton);
    EXPECT_FALSE(shown());
    QKeyEvent shift(QEvent::KeyPress, Qt::Key_Shift, Qt::ShiftModifier);
    QApplication::sendEvent(window->mainguibutton, &shift);
    EXPECT_FALSE(shown());
    press(Qt::Key_Down);
    EXPECT_TRUE(shown());
}

TEST_F(ring, IsNotShownOnTheBackground) {
    window->refresh_button->setFocus(Qt::TabFocusReason);
    window->mainview->setFocus(Qt::OtherFocusReason);
    EXPECT_FALSE(shown());
}

TEST_F(ring, GoesWithAControlThatIsHidden) {
    window->confirmbutton->setFocus(Qt::TabFocusReason);
    window->switchguishowdisk();
    const auto* frame = window->mainwindow->findChild<QFocusFrame*>();
    ASSERT_NE(frame, nullptr);
    EXPECT_NE(frame->widget(), window->confirmbutton);
}

} // namespace
