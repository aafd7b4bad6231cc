#include "app/level_indicator.h"

#include <QPainter>
#include <QStyle>
#include <QVariantAnimation>
#include <algorithm>

namespace {

constexpr double full = 100.0;
constexpr int glide_time = 300; // ms

} // namespace

level_indicator::level_indicator(QWidget* parent)
    : QProgressBar(parent), glide_(new QVariantAnimation(this)) {
    setRange(0, static_cast<int>(full));
    setTextVisible(false);
    glide_->setEasingCurve(QEasingCurve::OutCubic);
    glide_->setDuration(glide_time);
    connect(glide_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& value) { show_level(value.toDouble()); });
    set_level(0.0);
}

void level_indicator::set_level(double percent) {
    level_ = std::clamp(percent, 0.0, full);
    setValue(static_cast<int>(level_));
    glide_->stop();
    const bool motion = style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0;
    if (!motion || !isVisible() || level_ < shown_) {
        show_level(level_);
        return;
    }
    glide_->setStartValue(shown_);
    glide_->setEndValue(level_);
    glide_->start();
}

void level_indicator::set_stalled(bool stalled) {
    stalled_ = stalled;
    update();
}

void level_indicator::show_level(double percent) {
    shown_ = percent;
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
    filled.setWidth(filled.width() * shown_ / full);
    if (filled.width() < head_width) {
        return;
    }
    QLinearGradient light(filled.topLeft(), filled.bottomLeft());
    light.setColorAt(0, stalled_ ? QColor(0x8f, 0x9e, 0xac) : QColor(0xa9, 0xe0, 0xf7));
    light.setColorAt(1, stalled_ ? QColor(0x8f, 0x9e, 0xac) : QColor(0x6f, 0xc3, 0xe6));
    painter.setPen(Qt::NoPen);
    painter.setBrush(light);
    painter.drawRoundedRect(filled, radius - 1, radius - 1);
    painter.setBrush(QColor(0xea, 0xfa, 0xff));
    painter.drawRoundedRect(
        QRectF(filled.right() - head_width, filled.top(), head_width, filled.height()), 1.5, 1.5);
}
