// What the window shows around its outlets, state by state.
#include "app/scene.h"

#include <QCoreApplication>
#include <QDialog>
#include <QEnterEvent>
#include <QFrame>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <gmock/gmock.h>
#include <map>

#include "app/krview.h"
#include "app/level_indicator.h"
#include "app/panel.h"
#include "app/pictures.h"
#include "app/radio_matrix.h"
#include "app/text_field.h"
#include "app/verdict_pill.h"
#include "app/window_extras.h"
#include "tests/ui/spoken_window.h"

namespace {

class scene : public spoken_window {
protected:
    void SetUp() override { open_in(QStringLiteral("en")); }

    std::string verdict_shown() const {
        const auto* word = window->extras->status.verdict->findChild<text_field*>("verdict");
        return window->extras->status.verdict->isVisible() ? word->text().toStdString() : "";
    }

    QString fate_of_card(std::size_t port) const {
        return window->extras->cards[port].frame->property("fate").toString();
    }

    void look_at(QPushButton* button) {
        QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
        QCoreApplication::sendEvent(button, &enter);
    }

    void look_away_from(QPushButton* button) {
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(button, &leave);
    }
};

TEST_F(scene, VerdictStandsInEveryState) {
    const std::map<std::string, std::string> words = {
        {"empty", "No enclosure"},
        {"closed", "Not accessible"},
        {"silent", "Not accessible"},
        {"scanning", "Scanning"},
        {"no-disks", "No disks"},
        {"one-disk", "Not configured"},
        {"unconfigured", "Not configured"},
        {"raid0", "Healthy"},
        {"raid1", "Healthy"},
        {"span", "Healthy"},
        {"degraded", "Degraded"},
        {"fresh-disk", "Degraded"},
        {"diverged", "Copies differ"},
        {"broken-stripe", "Broken"},
        {"rebuild", "Rebuilding"},
    };
    for (const auto& [state, word] : words) {
        show_state(state);
        EXPECT_EQ(verdict_shown(), word) << state;
    }
}

TEST_F(scene, BlankWindowPassesNoVerdict) {
    show_state("raid1");
    window->cleargui();
    EXPECT_EQ(verdict_shown(), "");
    EXPECT_EQ(window->extras->status.advice->text(), QString());
}

TEST_F(scene, CreateIsTheBrightButtonOfAPlainPairAlone) {
    for (const std::string& state : state_names()) {
        show_state(state);
        const bool bright = window->confirmbutton->property("kind") == "primary";
        EXPECT_EQ(bright, state == "unconfigured" || state == "kind-not-chosen") << state;
    }
}

TEST_F(scene, EveryButtonThatIsOffSaysWhy) {
    for (const std::string& state : state_names()) {
        show_state(state);
        for (const QPushButton* button : {window->confirmbutton, window->clearconfigbutton,
                                          window->rebuild0to1button, window->rebuild1to0button}) {
            const QString said = button->accessibleDescription();
            EXPECT_TRUE(button->isEnabled() || said.endsWith(QLatin1Char('.')))
                << state << " " << button->objectName().toStdString() << " " << said.toStdString();
        }
    }
}

TEST_F(scene, ChoiceOfNoArraySaysWhyNothingCanBeCreated) {
    show_state("kind-not-chosen");
    EXPECT_FALSE(window->confirmbutton->isEnabled());
    EXPECT_EQ(window->confirmbutton->accessibleDescription(),
              QStringLiteral("Choose RAID 0, RAID 1 or span first."));
}

TEST_F(scene, OnlyTheRowOfTheArrayIsInUse) {
    show_state("span");
    QStringList tags;
    for (const text_field* field : window->raidconfigradiobutton->findChildren<text_field*>()) {
        if (field->property("role") == "tag" && !field->text().isEmpty()) {
            tags << field->parentWidget()->findChild<QRadioButton*>()->accessibleName();
        }
    }
    EXPECT_EQ(tags, QStringList{QStringLiteral("Span")});
    EXPECT_EQ(window->raidconfigradiobutton->selected_row(), 1);
}

TEST_F(scene, KindsCannotBeChosenWhileNothingIsKnown) {
    show_state("empty");
    EXPECT_FALSE(window->raidconfigradiobutton->isEnabled());
    show_state("degraded");
    EXPECT_TRUE(window->raidconfigradiobutton->isEnabled());
}

TEST_F(scene, DirectionThatIsLookedAtShowsWhatItWouldDo) {
    show_state("diverged");
    look_at(window->rebuild1to0button);
    EXPECT_EQ(fate_of_card(0), QStringLiteral("lost"));
    EXPECT_EQ(fate_of_card(1), QStringLiteral("stays"));
    EXPECT_EQ(window->extras->cards[0].fate->text(), QStringLiteral("overwritten"));
    EXPECT_EQ(window->extras->cards[1].fate->text(), QStringLiteral("stays"));
    look_away_from(window->rebuild1to0button);
    EXPECT_EQ(fate_of_card(0), QString());
    EXPECT_EQ(window->extras->cards[0].fate->text(), QString());
}

TEST_F(scene, FocusShowsTheSameAsTheMouse) {
    show_state("diverged");
    QFocusEvent in(QEvent::FocusIn, Qt::TabFocusReason);
    QCoreApplication::sendEvent(window->rebuild0to1button, &in);
    EXPECT_EQ(fate_of_card(1), QStringLiteral("lost"));
    QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(window->rebuild0to1button, &out);
    EXPECT_EQ(fate_of_card(1), QString());
}

TEST_F(scene, MouseThatGoesAwayLeavesTheEvidenceOfTheFocus) {
    show_state("diverged");
    QFocusEvent in(QEvent::FocusIn, Qt::TabFocusReason);
    QCoreApplication::sendEvent(window->rebuild0to1button, &in);
    look_at(window->rebuild1to0button);
    EXPECT_EQ(fate_of_card(0), QStringLiteral("lost"));
    look_away_from(window->rebuild1to0button);
    EXPECT_EQ(fate_of_card(0), QStringLiteral("stays"));
}

TEST_F(scene, ButtonThatIsEnabledUnderTheMouseShowsItsEvidence) {
    show_state("diverged");
    window->rebuild0to1button->setEnabled(false);
    look_at(window->rebuild0to1button);
    EXPECT_EQ(fate_of_card(0), QString());
    window->rebuild0to1button->setEnabled(true);
    EXPECT_EQ(fate_of_card(0), QStringLiteral("stays"));
}

TEST_F(scene, DirectionThatIsOffShowsNothing) {
    show_state("fresh-disk");
    look_at(window->rebuild1to0button);
    EXPECT_EQ(fate_of_card(0), QString());
}

TEST_F(scene, RunningRebuildLightsItsSourceWhateverIsLookedAt) {
    show_state("rebuild");
    EXPECT_EQ(fate_of_card(0), QStringLiteral("stays"));
    look_at(window->rebuild0to1button);
    look_away_from(window->rebuild0to1button);
    EXPECT_EQ(fate_of_card(0), QStringLiteral("stays"));
}

TEST_F(scene, RunningRebuildTellsItsSpeedAndTheTimeLeft) {
    show_state("rebuild");
    EXPECT_EQ(window->extras->speed->text(), QStringLiteral("128 MB/s"));
    EXPECT_EQ(window->extras->time_left->text(), QStringLiteral("about 2 h 43 min left"));
    show_state("rebuild-stalled");
    EXPECT_EQ(window->extras->speed->text(), QStringLiteral("stalled"));
    EXPECT_EQ(window->extras->time_left->text(), QString());
    window->cleargui();
    EXPECT_EQ(window->extras->speed->text(), QString());
}

TEST_F(scene, PaceGoesWithTheEndOfTheCopy) {
    show_state("rebuild");
    window->updatepoll(0, 0, true);
    EXPECT_EQ(window->extras->speed->text(), QString());
    show_state("rebuild");
    window->stopprogressbar();
    EXPECT_EQ(window->extras->time_left->text(), QString());
}

TEST_F(scene, ReadingsThatDoNotComeAnyMoreAreAStandstill) {
    show_state("rebuild");
    auto* watch = window->mainview->findChild<QTimer*>("pace_watch");
    ASSERT_NE(watch, nullptr);
    EXPECT_EQ(watch->intervalAsDuration(), copy_pace::stalled_after);
    watch->start(0);
    serve_until([&] { return window->extras->speed->text() == QStringLiteral("stalled"); });
}

TEST_F(scene, RestartingEnclosureKeepsTheButtonsOffAndSaysSo) {
    show_state("raid1");
    window->disablegui(false);
    show_restarting_scene(*window);
    EXPECT_EQ(window->extras->status.note_heading->text(),
              QStringLiteral("Restarting the enclosure…"));
    EXPECT_EQ(window->clearconfigbutton->accessibleDescription(),
              QStringLiteral("The enclosure is restarting. If it does not come back, press "
                             "“Refresh”."));
}

TEST_F(scene, ChangeOfTheArraySaysThatItGoesOn) {
    show_state("unconfigured");
    window->cleargui();
    show_changing_scene(*window);
    EXPECT_EQ(window->extras->status.note_heading->text(), QStringLiteral("Changing the array…"));
    EXPECT_FALSE(window->confirmbutton->isEnabled());
}

TEST_F(scene, GuideIsLinkedWhereADiskHasFailedAlone) {
    for (const std::string& state : state_names()) {
        show_state(state);
        const bool linked = window->extras->status.guide_link->isVisible();
        const bool amiss = verdict_shown() == "Degraded" || verdict_shown() == "Broken";
        EXPECT_EQ(linked, amiss && state != "info") << state;
    }
}

TEST_F(scene, GuideNamesThePagesByTheirCaptionsAndClosesOnReturn) {
    show_state("degraded");
    QStringList said;
    QTimer opened;
    opened.setSingleShot(true);
    QObject::connect(&opened, &QTimer::timeout, &opened, [&] {
        auto* guide = window->mainview->findChild<QDialog*>("guide");
        ASSERT_NE(guide, nullptr);
        for (const QLabel* label : guide->findChildren<QLabel*>()) {
            said << label->text();
        }
        QTest::keyClick(guide, Qt::Key_Return);
    });
    opened.start(0);
    window->extras->status.guide_link->click();
    EXPECT_TRUE(window->idle());
    EXPECT_TRUE(said.join(QLatin1Char(' ')).contains(QStringLiteral("the “RAID status” page")));
    EXPECT_TRUE(said.contains(QStringLiteral("2. Find the failed disk")));
}

// As if every picture file were missing.
TEST(window_without_pictures, IsUsable) {
    hide_pictures(true);
    class bare : public scene {
    public:
        void TestBody() override {
            SetUp();
            ASSERT_TRUE(picture_icon(QStringLiteral("disk.png")).isNull());
            for (const std::string& state : state_names()) {
                show_state(state);
                EXPECT_FALSE(window->mainview->grab(QRect(0, 0, 200, 100)).isNull()) << state;
            }
            show_state("raid1");
            EXPECT_TRUE(window->clearconfigbutton->isEnabled());
            EXPECT_EQ(window->raidmodelabel->text(), QStringLiteral("RAID 1"));
            TearDown();
        }
    };
    bare().TestBody();
    hide_pictures(false);
}

} // namespace
