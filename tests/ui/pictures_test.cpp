// The pictures that stand in the program's file.
#include "app/pictures.h"

#include <QDir>
#include <QPainter>
#include <QPixmap>
#include <gtest/gtest.h>

namespace {

const QLatin1String dense("@2x");

// Whether it is what the file shows, half transparent pixels as the toolkit's own conversion has
// them. Line by line: whole pictures are converted on threads that a sanitizer cannot see into.
bool shows(const QImage& shown, const QString& file) {
    const QImage expected(file);
    if (expected.isNull() || shown.size() != expected.size()) {
        return false;
    }
    const auto line = [](const QImage& image, int y) {
        return image.copy(0, y, image.width(), 1)
            .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    };
    for (int y = 0; y < shown.height(); ++y) {
        if (line(shown, y) != line(expected, y)) {
            return false;
        }
    }
    return true;
}

TEST(pictures, ArePixelByPixelWhatTheirFilesShow) {
    const QDir folder(QStringLiteral(KESTREL_PICTURES));
    const QStringList files = folder.entryList({QStringLiteral("*.png"), QStringLiteral("*.JPG")});
    ASSERT_FALSE(files.isEmpty());
    for (const QString& file : files) {
        const double ratio = file.contains(dense) ? 2 : 1;
        const QImage shown = picture(QString(file).remove(dense), ratio);
        EXPECT_TRUE(shows(shown, folder.filePath(file))) << file.toStdString();
    }
}

TEST(pictures, EveryOneThatTheWindowShowsIsThereForBothKindsOfScreen) {
    for (const char* name :
         {"RaidGUI_lumen_2.png",    "RaidST_click.png",   "RaidST_normal.png",
          "SysInfo_click.png",      "SysInfo_normal.png", "yellow.JPG",
          "branch-closed.png",      "branch-open.png",    "chevron-down.png",
          "chevron-down-off.png",   "close.png",          "disk.png",
          "disk-error.png",         "disk-missing.png",   "disk-warning.png",
          "enclosure.png",          "kestrelraid.png",    "minimise.png",
          "mode-none.png",          "mode-raid0.png",     "mode-raid1.png",
          "mode-span.png",          "panel-error.png",    "panel-info.png",
          "panel-warn.png",         "radio-hover.png",    "radio-off.png",
          "radio-off-disabled.png", "radio-on.png",       "radio-on-disabled.png",
          "radio-on-hover.png",     "refresh.png",        "status-busy.png",
          "status-error.png",       "status-info.png",    "status-none.png",
          "status-ok.png",          "status-warn.png",    "tree-array.png",
          "tree-disk.png",          "tree-enclosure.png", "volume.png"}) {
        const QSize once = picture(QLatin1String(name), 1).size();
        EXPECT_FALSE(once.isEmpty()) << name;
        EXPECT_EQ(picture(QLatin1String(name), 2).size(), 2 * once) << name;
    }
}

TEST(pictures, TheWindowsIconHasFourSizes) {
    for (const int size : {16, 32, 64, 128}) {
        EXPECT_EQ(picture(QStringLiteral("icon-%1.png").arg(size), 1).size(), QSize(size, size));
    }
}

TEST(pictures, ScreensBetweenTwoScalesGetTheLargerPicture) {
    EXPECT_EQ(picture(QStringLiteral("close.png"), 1.0).width(), 16);
    EXPECT_EQ(picture(QStringLiteral("close.png"), 1.25).width(), 32);
    EXPECT_EQ(picture(QStringLiteral("close.png"), 3.0).width(), 32);
    EXPECT_DOUBLE_EQ(picture(QStringLiteral("close.png"), 1.0).devicePixelRatio(), 1.0);
    EXPECT_DOUBLE_EQ(picture(QStringLiteral("close.png"), 1.25).devicePixelRatio(), 2.0);
}

TEST(pictures, OneThatThereIsNotIsEmpty) {
    EXPECT_TRUE(picture(QStringLiteral("no such picture.png"), 1).isNull());
    EXPECT_TRUE(picture(QString(), 1).isNull());
    EXPECT_TRUE(picture_icon(QStringLiteral("no such picture.png")).isNull());
    EXPECT_TRUE(coloured_icon(QString()).isNull());
}

TEST(pictures, NoneIsACopyBeforeItIsChanged) {
    for (const double ratio : {1.0, 2.0}) {
        EXPECT_EQ(picture(QStringLiteral("disk.png"), ratio).constBits(),
                  picture(QStringLiteral("disk.png"), ratio).constBits());
    }
}

TEST(pictures, TheToolkitKnowsAnIconThatItHasSeen) {
    const auto shown = [] { return picture_icon(QStringLiteral("disk.png")).pixmap(104, 120); };
    EXPECT_EQ(shown().cacheKey(), shown().cacheKey());
}

TEST(pictures, WhoChangesOneChangesACopy) {
    QImage mine = picture(QStringLiteral("disk.png"), 1);
    mine.fill(Qt::red);
    QPixmap also_mine = picture_icon(QStringLiteral("disk.png")).pixmap(104, 120);
    QPainter(&also_mine).fillRect(also_mine.rect(), Qt::red);
    const QDir folder(QStringLiteral(KESTREL_PICTURES));
    EXPECT_TRUE(
        shows(picture(QStringLiteral("disk.png"), 1), folder.filePath(QStringLiteral("disk.png"))));
}

TEST(pictures, AColouredIconIsNotDrainedOfItsColour) {
    const QSize size(20, 20);
    const QImage full = picture(QStringLiteral("yellow.JPG"), 1);
    const auto disabled = [&](const QIcon& icon) {
        return icon.pixmap(size, 1.0, QIcon::Disabled)
            .toImage()
            .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    };
    EXPECT_TRUE(disabled(coloured_icon(QStringLiteral("yellow.JPG"))) == full);
    EXPECT_FALSE(disabled(picture_icon(QStringLiteral("yellow.JPG"))) == full);
}

} // namespace
