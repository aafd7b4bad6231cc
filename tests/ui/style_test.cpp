// What the style says about the places within controls; what it paints is looked at in pictures.
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QStyleOptionComboBox>
#include <QStyleOptionSlider>
#include <QTabBar>
#include <QTreeView>
#include <gtest/gtest.h>
#include <limits>
#include <memory>

#include "app/box_look.h"
#include "app/lumen_style.h"
#include "app/scroll_look.h"
#include "app/tree_look.h"

namespace {

QStyleOptionSlider upright_bar(int minimum, int maximum, int page, int at) {
    QStyleOptionSlider option;
    option.rect = QRect(0, 0, width_of_scroll_bar, 204);
    option.orientation = Qt::Vertical;
    option.minimum = minimum;
    option.maximum = maximum;
    option.pageStep = page;
    option.sliderPosition = at;
    return option;
}

QRect handle(const QStyleOptionSlider& option) {
    return part_of_scroll_bar(option, QStyle::SC_ScrollBarSlider);
}

TEST(scroll_bar, HasAHandleAsLongAsItsShareOfThePages) {
    EXPECT_EQ(handle(upright_bar(0, 300, 100, 0)), QRect(2, 2, 6, 50));
    EXPECT_EQ(handle(upright_bar(0, 300, 100, 300)), QRect(2, 152, 6, 50));
}

TEST(scroll_bar, HasAHandleThatCanBeGrasped) {
    EXPECT_EQ(handle(upright_bar(0, 1'000'000, 1, 0)).height(), 32);
}

TEST(scroll_bar, IsAllHandleWhereThereIsNothingToScroll) {
    EXPECT_EQ(handle(upright_bar(0, 0, 10, 0)), QRect(2, 2, 6, 200));
}

TEST(scroll_bar, StandsTheWidestRange) {
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    const QRect whole(2, 2, 6, 200);
    EXPECT_TRUE(whole.contains(handle(upright_bar(least, most, most, most))));
    EXPECT_TRUE(whole.contains(handle(upright_bar(least, most, 0, least))));
}

TEST(scroll_bar, GoesAPageOnBeforeAndAfterItsHandleAndHasNoArrows) {
    const QStyleOptionSlider option = upright_bar(0, 300, 100, 150);
    const QRect before = part_of_scroll_bar(option, QStyle::SC_ScrollBarSubPage);
    const QRect after = part_of_scroll_bar(option, QStyle::SC_ScrollBarAddPage);
    EXPECT_EQ(before.bottom() + 1, handle(option).top());
    EXPECT_EQ(after.top(), handle(option).bottom() + 1);
    EXPECT_EQ(after.bottom() + 1, 202);
    EXPECT_TRUE(part_of_scroll_bar(option, QStyle::SC_ScrollBarAddLine).isEmpty());
    EXPECT_TRUE(part_of_scroll_bar(option, QStyle::SC_ScrollBarSubLine).isEmpty());
}

TEST(box, HasItsTextBesideItsArrow) {
    QStyleOptionComboBox option;
    option.rect = QRect(0, 0, 368, 32);
    const QRect text = part_of_box(option, QStyle::SC_ComboBoxEditField);
    const QRect arrow = part_of_box(option, QStyle::SC_ComboBoxArrow);
    EXPECT_EQ(arrow, QRect(335, 1, 32, 30));
    EXPECT_EQ(text, QRect(11, 1, 316, 30));
    option.direction = Qt::RightToLeft;
    EXPECT_EQ(part_of_box(option, QStyle::SC_ComboBoxArrow), QRect(1, 1, 32, 30));
}

class styled : public testing::Test {
protected:
    template<class Widget> void dress(Widget& widget) {
        widget.setStyle(style_.get());
        widget.ensurePolished();
    }

    std::unique_ptr<QStyle> style_{make_style()};
};

TEST_F(styled, ATabIsWideEnoughForAShortName) {
    QTabBar bar;
    dress(bar);
    bar.setExpanding(false);
    bar.addTab(QStringLiteral("a"));
    EXPECT_EQ(bar.tabRect(0).size(), QSize(90 + 2 * 21 + 4, 39));
}

TEST_F(styled, ARowOfATreeIsChosenAsAWhole) {
    QTreeView tree;
    dress(tree);
    EXPECT_EQ(style_->styleHint(QStyle::SH_ItemView_ShowDecorationSelected, nullptr, &tree), 1);
    EXPECT_EQ(tree.frameShape(), QFrame::NoFrame);
}

TEST_F(styled, TheTextOfABoxIsPaintedOnTheBoxItself) {
    QComboBox box;
    box.setEditable(true);
    dress(box);
    box.resize(368, 32);
    QPixmap picture(box.size());
    picture.fill(Qt::red);
    QPainter painter(&picture);
    QStyleOption option;
    option.rect = picture.rect();
    style_->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, box.lineEdit());
    painter.end();
    EXPECT_EQ(picture.toImage().pixelColor(100, 16), QColor(Qt::red));
}

} // namespace
