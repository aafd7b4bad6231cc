#include "app/numbered_step.h"

#include <QPainter>

#include "app/text_field.h"

namespace {

constexpr int ring = 22; // its diameter
constexpr int text_left = 32;

} // namespace

numbered_step::numbered_step(QWidget* parent) : QWidget(parent), text_(new text_field(this)) {}

void numbered_step::set_step(int number, const QString& text) {
    number_ = number;
    text_->set_value(text);
    update();
}

void numbered_step::paintEvent(QPaintEvent* /*event*/) {
    constexpr double line = 1.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x4f, 0x7b, 0x8f), line));
    const QRectF circle(line / 2, line / 2, ring - line, ring - line);
    painter.drawEllipse(circle);
    QFont small = font();
    small.setPixelSize(12);
    small.setWeight(QFont::DemiBold);
    painter.setFont(small);
    painter.setPen(QColor(0x8a, 0xd4, 0xf3));
    painter.drawText(circle, Qt::AlignCenter, QString::number(number_));
}

void numbered_step::resizeEvent(QResizeEvent* /*event*/) {
    text_->setGeometry(text_left, 0, width() - text_left, ring);
}
