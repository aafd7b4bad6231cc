// The pictures that stand in the program's file.
#include "app/pictures.h"

#include <QDir>
#include <QPainter>
#include <QPixmap>
#include <gtest/gtest.h>

namespace {

const QLatin1String dense("@2x");

// Half transparent pixels come out as the toolkit's own conversion has them.
QImage as_painted(const QString& file) {
    return QImage(file).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

TEST(pictures, ArePixelByPixelWhatTheirFilesShow) {
    const QDir folder(QStringLiteral(KESTREL_PICTURES));
    const QStringList files = folder.entryList(QDir::Files);
    ASSERT_GT(files.size(), 80);
    for (const QString& file : files) {
        const double ratio = file.contains(dense) ? 2 : 1;
        const QImage shown = picture(QString(file).remove(dense), ratio);
        EXPECT_TRUE(shown == as_painted(folder.filePath(file))) << file.toStdString();
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

TEST(pictures, WhoChangesOneChangesACopy) {
    QImage mine = picture(QStringLiteral("disk.png"), 1);
    mine.fill(Qt::red);
    QPixmap also_mine = picture_icon(QStringLiteral("disk.png")).pixmap(104, 120);
    QPainter(&also_mine).fillRect(also_mine.rect(), Qt::red);
    const QDir folder(QStringLiteral(KESTREL_PICTURES));
    EXPECT_TRUE(picture(QStringLiteral("disk.png"), 1) ==
                as_painted(folder.filePath(QStringLiteral("disk.png"))));
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
