#include "app/level_indicator.h"

#include <QPainter>
#include <algorithm>

namespace {

constexpr double full = 100.0;

} // namespace

level_indicator::level_indicator(QWidget* parent) : QProgressBar(parent) {
    setRange(0, static_cast<int>(full));
    setTextVisible(false);
    set_level(0.0);
}

void level_indicator::set_level(double percent) {
    level_ = std::clamp(percent, 0.0, full);
    setValue(static_cast<int>(level_));
    update();
}

void level_indicator::paintEvent(QPaintEvent* /*event*/) {
    constexpr double head_width = 3.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF well = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const double radius = well.height() / 2;
    painter.setPen(QColor(0x33, 0x3c, 0x46));
    painter.setBrush(QColor(0x0c, 0x11, 0x16));
    painter.drawRoundedRect(well, radius, radius);

    QRectF filled = well.adjusted(0.5, 0.5, -0.5, -0.5);
    filled.setWidth(filled.width() * level_ / full);
    if (filled.width() < head_width) {
        return;
    }
    QLinearGradient light(filled.topLeft(), filled.bottomLeft());
    light.setColorAt(0, QColor(0xa9, 0xe0, 0xf7));
    light.setColorAt(1, QColor(0x6f, 0xc3, 0xe6));
    painter.setPen(Qt::NoPen);
    painter.setBrush(light);
    painter.drawRoundedRect(filled, radius - 1, radius - 1);
    painter.setBrush(QColor(0xea, 0xfa, 0xff));
    painter.drawRoundedRect(
        QRectF(filled.right() - head_width, filled.top(), head_width, filled.height()), 1.5, 1.5);
}
