#include "app/working_indicator.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr int steps = 12;
constexpr int step_time = 90; // ms

} // namespace

working_indicator::working_indicator(QWidget* parent) : QWidget(parent) {
    connect(&timer_, &QTimer::timeout, this, [this] { turn(); });
    hide();
}

void working_indicator::start_animation() {
    animated_ = true;
    show();
    // A desktop that wants no motion gets a still picture.
    if (style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0) {
        timer_.start(step_time);
    }
}

void working_indicator::stop_animation() {
    animated_ = false;
    timer_.stop();
    hide();
}

void working_indicator::turn() {
    step_ = (step_ + 1) % steps;
    update();
}

void working_indicator::paintEvent(QPaintEvent* /*event*/) {
    constexpr double line = 2.5;
    constexpr int degree = 16; // QPainter counts sixteenths
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ring = QRectF(rect()).adjusted(line, line, -line, -line);
    painter.setPen(QPen(QColor(0x3a, 0x4a, 0x57), line));
    painter.drawEllipse(ring);
    painter.setPen(QPen(QColor(0x8a, 0xd4, 0xf3), line, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(ring, (90 - step_ * 360 / steps) * degree, -90 * degree);
}
