#include "app/pictures.h"

#include <QGuiApplication>
#include <QLatin1String>
#include <QPixmap>
#include <algorithm>
#include <array>
#include <cstddef>

// pictures.S
extern "C" const uchar kestrel_pictures[]; // NOLINT(modernize-avoid-c-arrays)

namespace {

struct place_of_picture {
    const char* name;
    int scale;
    int width;
    int height;
    std::size_t offset;
};

constexpr auto places = std::to_array<place_of_picture>({
#include "pictures.index"
});

bool hidden_for_tests = false;

// Kept, so that the toolkit knows what it has scaled or made faint already.
std::array<QImage, places.size()> made;

int scale_for(double ratio) {
    return ratio > 1.0 ? 2 : 1;
}

void add(QIcon& icon, const QString& name, QIcon::Mode mode) {
    icon.addPixmap(QPixmap::fromImage(picture(name, 1)), mode);
    if (scale_for(qGuiApp->devicePixelRatio()) == 2) {
        icon.addPixmap(QPixmap::fromImage(picture(name, 2)), mode);
    }
}

} // namespace

QImage picture(const QString& name, double ratio) {
    const auto* const found =
        std::find_if(places.begin(), places.end(), [&](const place_of_picture& one) {
            return one.scale == scale_for(ratio) && name == QLatin1String(one.name);
        });
    if (found == places.end() || hidden_for_tests) {
        return {};
    }
    QImage& image = made.at(static_cast<std::size_t>(found - places.begin()));
    if (image.isNull()) {
        image = QImage(kestrel_pictures + found->offset, found->width, found->height,
                       QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(found->scale);
    }
    return image;
}

QIcon picture_icon(const QString& name) {
    QIcon icon;
    add(icon, name, QIcon::Normal);
    return icon;
}

QIcon coloured_icon(const QString& name) {
    QIcon icon = picture_icon(name);
    add(icon, name, QIcon::Disabled);
    return icon;
}

void paint_picture(QPainter& painter, const QRect& area, const QString& name) {
    picture_icon(name).paint(&painter, area);
}

void hide_pictures(bool hidden) {
    hidden_for_tests = hidden;
}
