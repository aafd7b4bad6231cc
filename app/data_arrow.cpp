#include "app/data_arrow.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int arrow_height = 16;
constexpr qreal line_width = 2.5;

QPainterPath arrow_to_right(qreal width) {
    constexpr qreal end = 5;  // between the tip and the edge
    constexpr qreal barb = 7; // of the head, along the line and across it
    constexpr qreal start = 2;
    const qreal middle = arrow_height / 2.0;
    const qreal tip = width - end;
    QPainterPath path(QPointF(start, middle));
    path.lineTo(tip, middle);
    path.moveTo(tip - barb, middle - barb + 1);
    path.lineTo(tip, middle);
    path.lineTo(tip - barb, middle + barb - 1);
    return path;
}

} // namespace

data_arrow::data_arrow(bool to_right) : QWidget(nullptr), to_right_(to_right) {
    setFixedHeight(arrow_height);
}

void data_arrow::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(QColor(0xff, 0x8d, 0x82), line_width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (!to_right_) {
        painter.translate(width(), 0);
        painter.scale(-1, 1);
    }
    painter.drawPath(arrow_to_right(width()));
}
