#include "app/krview.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>
#include <algorithm>

namespace {

// The picture for screens of that many pixels to the point.
QImage load(const char* name, double ratio) {
    const bool dense = ratio > 1.0;
    QImage image(QStringLiteral(":/%1%2.png").arg(QLatin1String(name), dense ? "@2x" : ""));
    image.setDevicePixelRatio(dense ? 2.0 : 1.0);
    return image;
}

// As painting wants it. Qt would start a pool of threads for so large a picture, which then stay
// with the program.
QImage premultiplied(QImage image) {
    if (image.format() != QImage::Format_ARGB32) {
        return image;
    }
    for (int y = 0; y < image.height(); ++y) {
        auto* pixels = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(pixels, pixels + image.width(), pixels, [](QRgb pixel) {
            return qAlpha(pixel) == 255 ? pixel : qPremultiply(pixel);
        });
    }
    image.reinterpretAsFormat(QImage::Format_ARGB32_Premultiplied);
    return image;
}

} // namespace

void krview::awakeFromNib() {
    set_back(QPixmap::fromImage(premultiplied(load("RaidGUI_lumen_2", devicePixelRatio()))));
}

void krview::set_back(const QPixmap& picture) {
    back = picture;
    update();
}

void krview::drawRect() {
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    if (back.isNull()) {
        // Texts stay legible without the picture.
        painter.fillRect(rect(), QColor(0x15, 0x1c, 0x24));
        return;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // In strips so low that Qt paints them on this thread: see premultiplied().
    constexpr int strip_height = 30;
    for (int top = 0; top < height(); top += strip_height) {
        painter.setClipRect(0, top, width(), strip_height);
        painter.drawPixmap(rect(), back, back.rect());
    }
}

void krview::paintEvent(QPaintEvent* /*event*/) {
    drawRect();
}

void krview::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        pressed_at_ = event->globalPosition().toPoint();
    }
}

// Not at the press: a desktop that hears of the move after the release lets the window hang on the
// mouse.
void krview::mouseMoveEvent(QMouseEvent* event) {
    QWindow* handle = window()->windowHandle();
    if (!pressed_at_ || !event->buttons().testFlag(Qt::LeftButton) || handle == nullptr) {
        return;
    }
    const QPoint way = event->globalPosition().toPoint() - *pressed_at_;
    if (way.manhattanLength() >= QApplication::startDragDistance()) {
        pressed_at_.reset();
        handle->startSystemMove();
    }
}

// A button that the mouse is pulled off hands the moves on to here as well.
void krview::mouseReleaseEvent(QMouseEvent* /*event*/) {
    pressed_at_.reset();
}
