#include "app/styling.h"

#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QVariant>

#include "app/pictures.h"

namespace {

QPixmap picture_for(const QLabel& label, const QString& name, const QSize& size) {
    return picture_icon(name + QStringLiteral(".png")).pixmap(size, label.devicePixelRatio());
}

} // namespace

void restyle(QWidget* widget, const char* property, const QVariant& value) {
    if (widget->property(property) == value) {
        return;
    }
    widget->setProperty(property, value);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

void set_tone(QWidget* widget, const char* tone) {
    restyle(widget, "tone", QLatin1String(tone));
}

void show_picture(QLabel* label, const QString& name, const QSize& size) {
    label->setPixmap(picture_for(*label, name, size));
}

void show_faint_picture(QLabel* label, const QString& name, const QSize& size) {
    constexpr double faint = 0.6;
    const QPixmap full = picture_for(*label, name, size);
    if (full.isNull()) {
        label->setPixmap(full);
        return;
    }
    QPixmap made(full.size());
    made.setDevicePixelRatio(full.devicePixelRatio());
    made.fill(Qt::transparent);
    QPainter painter(&made);
    painter.setOpacity(faint);
    painter.drawPixmap(0, 0, full);
    painter.end();
    label->setPixmap(made);
}
