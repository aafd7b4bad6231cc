// What assistive programs are told.
#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <gmock/gmock.h>

#include "app/announcement.h"
#include "app/controller_box.h"
#include "app/krview.h"
#include "app/main_window.h"
#include "app/outlet_names.h"
#include "app/spoken_parts.h"
#include "app/text_field.h"
#include "app/titled_box.h"
#include "app/working_indicator.h"
#include "tests/ui/window_test.h"

namespace {

using testing::ElementsAre;

// Hears each notification that comes up.
class ear final : public QObject {
public:
    ear() { qApp->installEventFilter(this); }

    lines heard;

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override {
        if (event->type() == QEvent::Show && receiver->isWidgetType()) {
            QAccessibleInterface* part = QAccessible::queryAccessibleInterface(receiver);
            if (part->role() == QAccessible::Notification) {
                heard.push_back(part->text(QAccessible::Name).toStdString());
            }
        }
        return false;
    }
};

class spoken : public window_test {
protected:
    static QAccessibleInterface* told(QWidget* widget) {
        return QAccessible::queryAccessibleInterface(widget);
    }
    static std::string name(QWidget* widget) {
        return told(widget)->text(QAccessible::Name).toStdString();
    }

    ear listener;
};

TEST_F(spoken, StateIsAnnouncedOnceForEachChange) {
    announce(window->mainview, "Healthy");
    announce(window->raidmodelabel, "Healthy");
    announce(window->mainview, "Degraded");
    announce(window->mainview, "Healthy");
    EXPECT_THAT(listener.heard, ElementsAre("Healthy", "Degraded", "Healthy"));
}

TEST_F(spoken, ShownStateIsAnnouncedAndABlankingIsNot) {
    texts.set("ui_said", "%1. %2");
    show_chip([](krchip& chip) {
        put_disk(chip.disks[0], 2'000'000);
        put_disk(chip.disks[1], 2'000'000);
    });
    window->update_raid_information();
    window->cleargui();
    window->update_raid_information();
    EXPECT_THAT(listener.heard, ElementsAre("not_config. ui_advice_pair"));
}

TEST_F(spoken, BoxesAreGroupsWithTheirTitles) {
    EXPECT_EQ(told(window->raid_status_box)->role(), QAccessible::Grouping);
    EXPECT_EQ(name(window->raid_status_box), "raid_status");
    EXPECT_EQ(told(window->mainwindow)->role(), QAccessible::Window);
    EXPECT_EQ(told(window->workingindicator)->role(), QAccessible::Animation);
}

TEST_F(spoken, MereFrameIsNoGroupAndANamedOneIs) {
    QFrame mere;
    QFrame named;
    named.setAccessibleName("card");
    EXPECT_EQ(told(&mere)->role(), QAccessible::Client);
    EXPECT_EQ(told(&named)->role(), QAccessible::Grouping);
}

TEST_F(spoken, PictureIsToldByItsTextsAsTheyAreThen) {
    QLabel picture;
    QLabel first;
    QLabel second;
    tell_picture(&picture, {&first, &second});
    EXPECT_EQ(told(&picture)->role(), QAccessible::Graphic);
    second.setText("degraded");
    EXPECT_EQ(name(&picture), "degraded");
    first.setText("Disk 1");
    EXPECT_EQ(name(&picture), "Disk 1, degraded");
}

TEST_F(spoken, PictureWithoutTextsIsDecoration) {
    QLabel picture;
    picture.setPixmap(QPixmap(4, 4));
    tell_picture(&picture, {});
    EXPECT_EQ(told(&picture)->role(), QAccessible::Client);
}

TEST_F(spoken, ListOfEnclosuresIsLabelled) {
    const auto labels = told(window->controllerselectbox)->relations(QAccessible::Label);
    ASSERT_EQ(labels.size(), 1);
    EXPECT_EQ(labels[0].first->text(QAccessible::Name), QStringLiteral("ui_controllers"));
}

TEST(outlet_name, StandsAtTheEndOfTheDescriptionWhileAssistiveProgramsAreServed) {
    QWidget page;
    auto* button = new QWidget(&page);
    button->setObjectName("confirmbutton");
    button->setAccessibleDescription("Ctrl+N");
    const auto said = [button] { return button->accessibleDescription().toStdString(); };
    page.show();
    EXPECT_EQ(said(), "Ctrl+N");
    const outlet_names names;
    page.hide();
    page.show();
    EXPECT_EQ(said(), "Ctrl+N");
    QAccessible::setActive(true);
    EXPECT_EQ(said(), "Ctrl+N [confirmbutton]");
    button->setAccessibleDescription("Needs two disks.");
    button->setToolTip("Needs two disks.");
    EXPECT_EQ(said(), "Needs two disks. [confirmbutton]");
    button->setToolTip("again");
    EXPECT_EQ(said(), "Needs two disks. [confirmbutton]");
    QAccessible::setActive(false);
}

TEST(outlet_name, IsGivenToWhatStaysHidden) {
    const outlet_names names;
    QAccessible::setActive(true);
    QWidget page;
    QWidget behind(&page);
    behind.setObjectName("tree");
    behind.hide();
    page.show();
    EXPECT_EQ(behind.accessibleDescription(), QStringLiteral("[tree]"));
    QAccessible::setActive(false);
}

} // namespace
