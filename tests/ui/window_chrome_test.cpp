// Captions, pages, names of the outlets and the background.
#include <QAbstractButton>
#include <QIcon>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTreeView>
#include <gmock/gmock.h>

#include "app/background.h"
#include "app/controller_box.h"
#include "app/krview.h"
#include "app/level_indicator.h"
#include "app/main_window.h"
#include "app/radio_matrix.h"
#include "app/text_field.h"
#include "app/titled_box.h"
#include "app/working_indicator.h"
#include "tests/ui/window_test.h"

namespace {

using testing::ElementsAre;

class chrome : public window_test {};

TEST_F(chrome, CaptionsAreSetInTheirOrderAndShowTheirKeysWithoutAStringTable) {
    window->setGUIStrings();
    EXPECT_EQ(take_outlets(), (lines{"confirmbutton: title \"create_raid\"",
                                     "clearconfigbutton: title \"delete_raid\"",
                                     "raid_config_radio_box: title \"raid_configuration\"",
                                     "tabview: label 0 \"configuration_tab\"",
                                     "tabview: label 1 \"rebuild\"",
                                     "rebuildlabel: text \"rebuild_progress\"",
                                     "disk1_SN_static_label: text \"SN\"",
                                     "disk2_SN_static_label: text \"SN\"",
                                     "disk1_info_static_label: text \"disk_1\"",
                                     "disk2_info_static_label: text \"disk_2\"",
                                     "disk1_rebuild_static_label: text \"disk_1\"",
                                     "disk2_rebuild_static_label: text \"disk_2\"",
                                     "disk1_physize_static_label: text \"phy_size\"",
                                     "disk2_physize_static_label: text \"phy_size\"",
                                     "disk1_mode_static_label: text \"mode\"",
                                     "disk2_mode_static_label: text \"mode\"",
                                     "raid_status_box: title \"raid_status\"",
                                     "refresh_button: title \"refresh_button\"",
                                     "rebuild0to1button: title \"rebuild->\"",
                                     "rebuild1to0button: title \"<-rebuild\""}));
    EXPECT_EQ(window->rebuild0to1button->text(), QStringLiteral("rebuild->"));
    EXPECT_EQ(window->rebuild1to0button->text(), QStringLiteral("<-rebuild"));
}

TEST_F(chrome, AmpersandOfATextIsShownAndMarksNoKey) {
    texts.set("rebuild", "Re&build");
    window->setGUIStrings();
    EXPECT_EQ(window->rebuild0to1button->text(), QStringLiteral("Re&&build->"));
    EXPECT_EQ(window->tabview->label(1), QStringLiteral("Re&&build"));
    EXPECT_EQ(window->rebuild0to1button->accessibleName(), QStringLiteral("Re&build->"));
}

TEST_F(chrome, PagesSwitchWithTheirPictures) {
    window->switchguishowdisk();
    EXPECT_THAT(take_outlets(),
                ElementsAre("showdiskguibutton: image SysInfo_click.png",
                            "mainguibutton: image RaidST_normal.png", "guitab: selects 1"));
    EXPECT_EQ(window->guitab->currentIndex(), 1);
    window->switchguimain();
    EXPECT_THAT(take_outlets(),
                ElementsAre("showdiskguibutton: image SysInfo_normal.png",
                            "mainguibutton: image RaidST_click.png", "guitab: selects 0"));
    EXPECT_EQ(window->guitab->currentIndex(), 0);
}

TEST_F(chrome, PageButtonsSwitchThePages) {
    window->showdiskguibutton->click();
    EXPECT_EQ(window->guitab->currentIndex(), 1);
    window->mainguibutton->click();
    EXPECT_EQ(window->guitab->currentIndex(), 0);
}

TEST_F(chrome, MinimiseButtonMinimises) {
    window->minimizebutton->click();
    EXPECT_TRUE(window->mainwindow->isMinimized());
}

TEST_F(chrome, MissingPictureLeavesAUsableButton) {
    window->outlets.set_image(window->mainguibutton, "no such picture.png");
    EXPECT_TRUE(window->mainguibutton->isEnabled());
    EXPECT_TRUE(window->mainguibutton->icon().pixmap(16).isNull());
}

TEST_F(chrome, EveryControlHasAName) {
    for (const QAbstractButton* button : window->mainview->findChildren<QAbstractButton*>()) {
        if (button != window->twotbcheckbox) {
            EXPECT_FALSE(button->accessibleName().isEmpty() && button->text().isEmpty())
                << button->objectName().toStdString();
        }
    }
    EXPECT_FALSE(window->controllerselectbox->accessibleName().isEmpty());
    EXPECT_FALSE(window->tree->accessibleName().isEmpty());
}

// Background.

QImage painted(krview& view) {
    QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    view.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

TEST(background, IsStretchedOverTheWholeView) {
    QImage picture(2, 1, QImage::Format_ARGB32_Premultiplied);
    picture.setPixelColor(0, 0, Qt::blue);
    picture.setPixelColor(1, 0, Qt::green);
    krview view;
    view.resize(100, 50);
    view.set_back(picture);
    const QImage image = painted(view);
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(0, 49), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(99, 0), QColor(Qt::green));
    EXPECT_EQ(image.pixelColor(99, 49), QColor(Qt::green));
}

TEST(background, ReplacesWhatIsBelowInsteadOfMixingWithIt) {
    QImage picture(1, 1, QImage::Format_ARGB32_Premultiplied);
    picture.fill(QColor(0, 0, 255, 64));
    krview view;
    view.resize(10, 10);
    view.set_back(picture);
    EXPECT_EQ(painted(view).pixelColor(5, 5).alpha(), 64);
    EXPECT_EQ(painted(view).pixelColor(5, 5).red(), 0);
}

TEST(background, WithoutItsPictureIsStillDark) {
    krview view;
    view.resize(10, 10);
    view.set_back(QImage());
    EXPECT_LT(painted(view).pixelColor(5, 5).lightness(), 50);
}

TEST(background, IsThePictureFromTheStart) {
    krview view;
    view.resize(800, 630);
    view.awakeFromNib();
    const QImage shown = painted(view);
    EXPECT_EQ(shown.size(), QSize(800, 630));
    EXPECT_TRUE(shown == background(1));
}

TEST(background, IsTwiceAsLargeOnDenseScreens) {
    EXPECT_EQ(background(1.5).size(), QSize(1600, 1260));
    EXPECT_DOUBLE_EQ(background(1.5).devicePixelRatio(), 2.0);
}

} // namespace
