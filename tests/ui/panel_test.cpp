// Message panels, answered as a user does it.
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gmock/gmock.h>

#include "app/input_guard.h"
#include "app/panel.h"

namespace {

class panel : public testing::Test {
protected:
    void SetUp() override {
        window.resize(800, 630);
        behind.setGeometry(10, 10, 50, 20);
        behind.setFocusPolicy(Qt::StrongFocus);
        window.show();
    }

    // Opens the panel; `user` acts as soon as it is open.
    int open(const std::function<void()>& user, bool two_buttons = true) {
        QTimer::singleShot(0, &window, user);
        panel_request request{panel_kind::warning, "Warning", "<b>All data</b> lost", {"OK"}};
        if (two_buttons) {
            request.buttons.emplace_back("Cancel & stay");
        }
        return run_panel(&window, guard, request);
    }
    QPushButton* button(const char* name) {
        return guard.topmost_panel()->findChild<QPushButton*>(QLatin1String(name));
    }
    void press(Qt::Key key) { QTest::keyClick(guard.topmost_panel(), key); }
    void dismiss() { dismiss_topmost_panel(guard); }

    QWidget window;
    QPushButton behind{&window};
    input_guard guard;
};

TEST_F(panel, DefaultButtonIsOne) {
    EXPECT_EQ(open([this] { button("panel_default_button")->click(); }), 1);
}

TEST_F(panel, SecondButtonIsZero) {
    EXPECT_EQ(open([this] { button("panel_second_button")->click(); }), 0);
}

TEST_F(panel, ReturnIsTheDefaultButton) {
    EXPECT_EQ(open([this] { press(Qt::Key_Return); }), 1);
}

TEST_F(panel, EscapeAndClosingAreTheSecondButton) {
    EXPECT_EQ(open([this] { press(Qt::Key_Escape); }), 0);
    EXPECT_EQ(open([this] { dismiss(); }), 0);
    EXPECT_EQ(open([this] { guard.topmost_panel()->close(); }), 0);
}

TEST_F(panel, WithOneButtonHasOneAnswer) {
    EXPECT_EQ(open([this] { press(Qt::Key_Escape); }, false), 1);
    EXPECT_EQ(open([this] { button("panel_default_button")->click(); }, false), 1);
}

TEST_F(panel, WithoutAWindowFails) {
    EXPECT_EQ(run_panel(nullptr, guard, {panel_kind::error, "", "", {"OK"}}), panel_failed);
    EXPECT_EQ(run_panel(&window, guard, {panel_kind::error, "", "", {}}), panel_failed);
}

TEST_F(panel, ShowsMarkupAsPlainText) {
    open([this] {
        bool found = false;
        for (const QLabel* label : guard.topmost_panel()->findChildren<QLabel*>()) {
            found = found || label->text() == QLatin1String("<b>All data</b> lost");
            EXPECT_NE(label->textFormat(), Qt::RichText);
            EXPECT_TRUE(label->text().isEmpty() || label->textFormat() == Qt::PlainText);
        }
        EXPECT_TRUE(found);
        EXPECT_EQ(button("panel_second_button")->text(), QStringLiteral("Cancel && stay"));
        dismiss();
    });
}

TEST_F(panel, LiesInTheMiddleOfTheWindowAndIsNoWindowOfItsOwn) {
    open([this] {
        const QWidget* shown = guard.topmost_panel();
        EXPECT_FALSE(shown->isWindow());
        const QPoint centre = shown->mapTo(&window, shown->rect().center());
        EXPECT_LE((centre - window.rect().center()).manhattanLength(), 2);
        dismiss();
    });
}

TEST_F(panel, TabKeyStaysInsideIt) {
    open([this] {
        for (int i = 0; i < 3; ++i) {
            QWidget* focus = guard.topmost_panel()->focusWidget();
            ASSERT_NE(focus, nullptr);
            QTest::keyClick(focus, Qt::Key_Tab);
            EXPECT_FALSE(behind.hasFocus());
        }
        dismiss();
    });
}

TEST_F(panel, InputBehindItIsDropped) {
    int clicked = 0;
    QObject::connect(&behind, &QPushButton::clicked, &behind, [&clicked] { ++clicked; });
    open([this] {
        QTest::mouseClick(&behind, Qt::LeftButton);
        QTest::keyClick(&behind, Qt::Key_Space);
        dismiss(); // NOLINT(clang-analyzer-core.CallAndMessage): QTest asks whether it has a widget
    });
    EXPECT_EQ(clicked, 0);
    QTest::mouseClick(&behind, Qt::LeftButton);
    EXPECT_EQ(clicked, 1);
}

TEST_F(panel, FocusThatGoesBehindItComesBack) {
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(open([this] {
                  behind.setFocus(Qt::MouseFocusReason); // as a click beside the panel does
                  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
              }),
              0);
}

TEST_F(panel, KeyHeldDownSinceThePanelBeforeDoesNotAnswer) {
    EXPECT_EQ(open([this] {
                  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
                  QApplication::sendEvent(guard.topmost_panel(), &held);
                  QApplication::sendEvent(button("panel_default_button"), &held);
                  ASSERT_NE(guard.topmost_panel(), nullptr);
                  dismiss();
              }),
              0);
}

TEST_F(panel, OnlyTheTopmostTakesInput) {
    open([this] {
        const QWidget* first = guard.topmost_panel();
        QPushButton* lower = button("panel_default_button");
        open([this, lower] {
            QTest::mouseClick(lower, Qt::LeftButton);
            dismiss();
        });
        EXPECT_EQ(guard.topmost_panel(), first);
        dismiss();
    });
    EXPECT_EQ(guard.topmost_panel(), nullptr);
}

// An assistive program reaches a panel that lies under another.
TEST_F(panel, AnsweredUnderAnotherIsOutOfTheWay) {
    int upper_answer = -1;
    const int lower_answer = open([this, &upper_answer] {
        QPointer<QWidget> lower = guard.topmost_panel();
        QPushButton* lower_ok = button("panel_default_button");
        upper_answer = open([this, lower, lower_ok] {
            QWidget* upper = guard.topmost_panel();
            ASSERT_NE(upper, lower.data());
            lower_ok->click();
            EXPECT_EQ(guard.topmost_panel(), upper);
            press(Qt::Key_Escape);
            EXPECT_EQ(guard.topmost_panel(), nullptr);
        });
    });
    EXPECT_EQ(upper_answer, 0);
    EXPECT_EQ(lower_answer, 1);
    EXPECT_TRUE(guard.idle());
}

TEST_F(panel, GivesTheFocusBack) {
    window.activateWindow();
    behind.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    ASSERT_TRUE(behind.hasFocus());
    open([this] { dismiss(); });
    EXPECT_TRUE(behind.hasFocus());
}

TEST_F(panel, LongTextMakesItTaller) {
    int usual = 0;
    open([&] {
        usual = guard.topmost_panel()->height();
        dismiss();
    });
    panel_request request{panel_kind::attention, "A", "", {"OK"}};
    for (int i = 0; i < 120; ++i) {
        request.message += "word ";
    }
    QTimer::singleShot(0, &window, [&] {
        EXPECT_GT(guard.topmost_panel()->height(), usual);
        dismiss();
    });
    run_panel(&window, guard, request);
}

TEST_F(panel, WithoutAPlanIsTheSmallOne) {
    open([this] {
        EXPECT_EQ(guard.topmost_panel()->size(), QSize(520, 196));
        EXPECT_EQ(guard.topmost_panel()->findChild<QWidget*>(QStringLiteral("plan_card_1")),
                  nullptr);
        dismiss();
    });
}

TEST_F(panel, NothingIsDismissedWithoutOne) {
    dismiss();
    EXPECT_TRUE(guard.idle());
}

} // namespace
