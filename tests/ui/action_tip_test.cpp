// What a control's tip says, and what is read aloud for it.
#include <QKeySequence>
#include <QPushButton>
#include <QTextDocument>
#include <gtest/gtest.h>

#include "app/action_tip.h"

namespace {

class action_tip : public testing::Test {
protected:
    void SetUp() override { button.setAccessibleName(QStringLiteral("Create")); }

    // The tip as it is shown.
    std::string shown() const {
        QTextDocument document;
        document.setHtml(button.toolTip());
        return document.toPlainText().toStdString();
    }
    std::string said() const { return button.accessibleDescription().toStdString(); }

    const QKeySequence key{Qt::CTRL | Qt::Key_N};
    QPushButton button{QStringLiteral("Create")};
};

TEST_F(action_tip, NamesTheControlAndItsKeyWhileItIsEnabled) {
    set_key(&button, key);
    EXPECT_EQ(shown(), "Create (Ctrl+N)");
    EXPECT_EQ(said(), "Ctrl+N");
    EXPECT_EQ(button.shortcut(), key);
}

TEST_F(action_tip, GivesTheReasonWhileTheControlIsDisabled) {
    set_key(&button, key);
    set_reason(&button, QStringLiteral("Needs two disks."));
    EXPECT_EQ(shown(), "Create (Ctrl+N)");
    button.setEnabled(false);
    EXPECT_EQ(shown(), "Needs two disks.");
    EXPECT_EQ(said(), "Needs two disks.");
    button.setEnabled(true);
    EXPECT_EQ(shown(), "Create (Ctrl+N)");
}

TEST_F(action_tip, FollowsAReasonThatChanges) {
    button.setEnabled(false);
    set_reason(&button, QStringLiteral("First."));
    set_reason(&button, QStringLiteral("Second."));
    EXPECT_EQ(said(), "Second.");
}

TEST_F(action_tip, IsTheNameWhereNeitherKeyNorReasonIsKnown) {
    set_reason(&button, {});
    EXPECT_EQ(shown(), "Create");
    set_key(&button, key);
    button.setEnabled(false);
    EXPECT_EQ(shown(), "Create");
    EXPECT_EQ(said(), "Create");
}

TEST_F(action_tip, KeyOutlastsANewText) {
    set_key(&button, key);
    button.setText(QStringLiteral("Other"));
    button.setAccessibleName(QStringLiteral("Other"));
    set_reason(&button, {});
    EXPECT_EQ(button.shortcut(), key);
    EXPECT_EQ(shown(), "Other (Ctrl+N)");
}

TEST_F(action_tip, ShowsMarkupAsItStandsAndNeverReadsMarkupAloud) {
    button.setEnabled(false);
    set_reason(&button, QStringLiteral("<b>no</b> & why"));
    EXPECT_EQ(shown(), "<b>no</b> & why");
    EXPECT_EQ(said(), "<b>no</b> & why");
}

} // namespace
