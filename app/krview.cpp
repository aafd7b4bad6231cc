#include "app/krview.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWindow>

#include "app/background.h"

void krview::awakeFromNib() {
    set_back(background(devicePixelRatio()));
}

void krview::set_back(const QImage& picture) {
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
    // In strips so low that Qt paints them on this thread: for more it would start a pool of
    // threads, which then stay with the program.
    constexpr int strip_height = 30;
    for (int top = 0; top < height(); top += strip_height) {
        painter.setClipRect(0, top, width(), strip_height);
        painter.drawImage(rect(), back, back.rect());
    }
}

void krview::paintEvent(QPaintEvent* event) {
    drawRect();
    if (event->rect().contains(rect())) {
        rest_background(back); // what is painted bit by bit is needed again
    }
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
