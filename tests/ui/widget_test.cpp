// The widgets of our own, each by itself.
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QWheelEvent>
#include <gmock/gmock.h>

#include "app/controller_box.h"
#include "app/first_paint.h"
#include "app/level_indicator.h"
#include "app/radio_matrix.h"
#include "app/text_field.h"
#include "app/titled_box.h"
#include "app/working_indicator.h"

namespace {

// What a tip shows on the screen.
QString shown_by_tip(const QString& tip) {
    QString text =
        Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip;
    return text.replace(QChar::Nbsp, QLatin1Char(' '));
}

TEST(text_field, ThatIsTooLongShowsItsBeginningAndItsEnd) {
    text_field field(nullptr);
    field.resize(100, 20);
    const QString text = QStringLiteral("WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW");
    field.set_value(text);
    const QImage cut = field.grab().toImage();
    field.set_value(field.fontMetrics().elidedText(text, Qt::ElideMiddle, 100));
    EXPECT_EQ(cut, field.grab().toImage());
    field.set_value(QString());
    EXPECT_NE(cut, field.grab().toImage());
}

TEST(text_field, ShowsMarkupAsPlainText) {
    text_field field(nullptr);
    field.set_value(QStringLiteral("<b>bold</b>"));
    EXPECT_EQ(field.textFormat(), Qt::PlainText);
    EXPECT_EQ(field.text(), QStringLiteral("<b>bold</b>"));
}

TEST(text_field, ThatIsTooLongIsWholeInItsTip) {
    text_field field(nullptr);
    field.resize(40, 20);
    field.show();
    for (const char* text : {"<b>a very long</b> name", "AT&T, a very long name",
                             "a very long name  (S/N: 1)", "&lt;a very long name&gt;"}) {
        field.set_value(QLatin1String(text));
        EXPECT_EQ(shown_by_tip(field.toolTip()), QLatin1String(text));
    }
    field.set_value(QStringLiteral("a"));
    EXPECT_EQ(field.toolTip(), QString());
}

TEST(text_field, HasItsTipWhenItIsShown) {
    text_field field(nullptr);
    field.resize(40, 20);
    field.set_value(QStringLiteral("a very long name"));
    field.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(shown_by_tip(field.toolTip()), QStringLiteral("a very long name"));
}

TEST(text_field, IsRepeatedByItsFollower) {
    text_field field(nullptr);
    text_field follower(nullptr);
    field.repeat_in(&follower);
    field.set_value(QStringLiteral("RAID 1"));
    EXPECT_EQ(follower.text(), QStringLiteral("RAID 1"));
}

TEST(first_paint, IsFollowedByTheActionOnce) {
    QWidget widget;
    int calls = 0;
    after_first_paint(&widget, [&calls] { ++calls; });
    QCoreApplication::processEvents();
    EXPECT_EQ(calls, 0);
    widget.grab();
    EXPECT_EQ(calls, 0);
    EXPECT_TRUE(QTest::qWaitFor([&calls] { return calls == 1; }));
    widget.grab();
    QCoreApplication::processEvents();
    EXPECT_EQ(calls, 1);
}

TEST(level_indicator, KeepsToItsEnds) {
    level_indicator bar(nullptr);
    EXPECT_EQ(bar.level(), 0.0);
    bar.set_level(37.4);
    EXPECT_EQ(bar.level(), 37.4);
    EXPECT_EQ(bar.value(), 37);
    bar.set_level(150.0);
    EXPECT_EQ(bar.level(), 100.0);
    EXPECT_EQ(bar.value(), 100);
    bar.set_level(-1.0);
    EXPECT_EQ(bar.level(), 0.0);
}

TEST(level_indicator, IsFilledUpToItsLevel) {
    level_indicator bar(nullptr);
    bar.resize(100, 10);
    bar.set_level(50.0);
    const QImage image = bar.grab().toImage();
    EXPECT_GT(image.pixelColor(25, 5).lightness(), 100);
    EXPECT_LT(image.pixelColor(75, 5).lightness(), 100);
}

TEST(working_indicator, IsHiddenUntilItStarts) {
    working_indicator indicator(nullptr);
    EXPECT_TRUE(indicator.isHidden());
    indicator.start_animation();
    EXPECT_FALSE(indicator.isHidden());
    indicator.resize(24, 24);
    EXPECT_FALSE(indicator.grab().isNull());
    indicator.stop_animation();
    EXPECT_TRUE(indicator.isHidden());
}

TEST(titled_box, IsNamedByItsTitle) {
    titled_box box(nullptr);
    box.set_title(QStringLiteral("RAID"));
    EXPECT_EQ(box.title(), QStringLiteral("RAID"));
    EXPECT_EQ(box.accessibleName(), QStringLiteral("RAID"));
}

TEST(radio_matrix, BeginsWithTheFirstRow) {
    const radio_matrix matrix(nullptr);
    EXPECT_EQ(matrix.selected_row(), 0);
}

TEST(radio_matrix, PutsTheRowBackThatItsDelegateRefuses) {
    radio_matrix matrix(nullptr);
    matrix.select_row(1);
    matrix.set_delegate([] { return false; });
    matrix.click_row(3);
    EXPECT_EQ(matrix.selected_row(), 1);
}

TEST(radio_matrix, HearsOfAChoiceThatIsMadeWithoutAClick) {
    radio_matrix matrix(nullptr);
    int chosen = 0;
    matrix.set_delegate([&chosen] {
        ++chosen;
        return true;
    });
    matrix.findChild<QRadioButton*>(QStringLiteral("raidconfigradiobutton_row2"))->toggle();
    EXPECT_EQ(matrix.selected_row(), 2);
    EXPECT_EQ(chosen, 1);
}

TEST(radio_matrix, TakesThePrimaryButtonInsideTheRowOnly) {
    radio_matrix matrix(nullptr);
    QWidget* row = matrix.childAt(200, 3 * 49 + 40);
    ASSERT_NE(row, nullptr);
    while (row->parentWidget() != &matrix) {
        row = row->parentWidget();
    }
    QTest::mouseClick(row, Qt::RightButton, {}, QPoint(5, 5));
    QTest::mouseRelease(row, Qt::LeftButton, {}, QPoint(5, -30));
    EXPECT_EQ(matrix.selected_row(), 0);
    QTest::mouseClick(row, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(matrix.selected_row(), 3);
}

TEST(radio_matrix, HasOneRowChosenAtATime) {
    radio_matrix matrix(nullptr);
    int chosen = 0;
    matrix.set_delegate([&chosen] {
        ++chosen;
        return true;
    });
    matrix.click_row(2);
    EXPECT_EQ(matrix.selected_row(), 2);
    EXPECT_EQ(chosen, 1);
    matrix.select_row(1);
    EXPECT_EQ(matrix.selected_row(), 1);
    EXPECT_EQ(chosen, 1);
}

TEST(radio_matrix, CanHaveNoRowChosen) {
    radio_matrix matrix(nullptr);
    matrix.select_row(-1);
    EXPECT_EQ(matrix.selected_row(), -1);
    matrix.click_row(3);
    EXPECT_EQ(matrix.selected_row(), 3);
}

TEST(radio_matrix, TakesAClickAnywhereInARow) {
    radio_matrix matrix(nullptr);
    matrix.resize(384, 196);
    QWidget* row = matrix.childAt(200, 49 + 10);
    ASSERT_NE(row, nullptr);
    while (row->parentWidget() != &matrix) {
        row = row->parentWidget();
    }
    QTest::mouseClick(row, Qt::LeftButton);
    EXPECT_EQ(matrix.selected_row(), 1);
}

class box : public testing::Test {
protected:
    void add(const char* text) { list.add_entry(QLatin1String(text), {}); }

    controller_box list{nullptr};
};

TEST_F(box, SelectsNothingByItself) {
    int told = 0;
    list.set_delegate([&told] { ++told; });
    add("first");
    add("second");
    EXPECT_EQ(list.currentIndex(), -1);
    EXPECT_EQ(list.currentText(), QString());
    EXPECT_EQ(told, 0);
}

TEST_F(box, TellsNobodyWhenTheProgramSelects) {
    int told = 0;
    list.set_delegate([&told] { ++told; });
    add("first");
    list.select(0);
    EXPECT_EQ(list.currentIndex(), 0);
    EXPECT_EQ(list.currentText(), QStringLiteral("first"));
    EXPECT_EQ(told, 0);
}

TEST_F(box, TellsWhenTheUserHasChosenWithTheKeys) {
    int told = 0;
    list.set_delegate([&told] { ++told; });
    add("first");
    add("second");
    list.select(0);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.currentIndex(), 1);
    EXPECT_EQ(told, 1);
}

TEST_F(box, KeepsItsTextWhenItsEntriesGo) {
    add("first");
    list.select(0);
    list.remove_all();
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(list.currentText(), QStringLiteral("first"));
}

TEST_F(box, IsNotSwitchedByTheWheel) {
    add("first");
    add("second");
    list.select(0);
    QWheelEvent event(QPointF(5, 5), QPointF(5, 5), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&list, &event);
    EXPECT_EQ(list.currentIndex(), 0);
}

TEST_F(box, CannotBeTypedInto) {
    add("first");
    list.select(0);
    QTest::keyClicks(list.lineEdit(), QStringLiteral("x"));
    EXPECT_EQ(list.currentText(), QStringLiteral("first"));
}

TEST_F(box, RemembersWhomEachEntryStandsFor) {
    controller_t identity;
    identity.guid = 7;
    add("first");
    list.add_entry(QStringLiteral("second"), identity);
    EXPECT_EQ(list.identity(0).guid, 0U);
    EXPECT_EQ(list.identity(1).guid, 7U);
}

} // namespace
