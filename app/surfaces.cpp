#include "app/surfaces.h"

#include <QByteArray>
#include <QPainter>
#include <QVariant>
#include <QWidget>

#include "app/colours.h"

namespace {

constexpr QRgb white(int opacity) {
    return qRgba(255, 255, 255, opacity);
}

constexpr QRgb err(int opacity) {
    return qRgba(255, 141, 130, opacity);
}

constexpr QRgb busy(int opacity) {
    return qRgba(138, 212, 243, opacity);
}

surface card(const QByteArray& fate) {
    constexpr int radius = 9;
    constexpr QRgb well = qRgba(10, 14, 19, 107);
    if (fate == "stays") {
        return {well, 0xff4f778a, radius, true};
    }
    if (fate == "lost") {
        return {err(13), 0xff955956, radius, true};
    }
    return {well, 0xff2a3139, radius, true};
}

surface pill(const QByteArray& tone) {
    constexpr int radius = 12;
    if (tone == "ok") {
        return {qRgba(116, 211, 160, 28), 0xff3b6256, radius, true};
    }
    if (tone == "warn") {
        return {qRgba(240, 192, 90, 28), 0xff6c5f3e, radius, true};
    }
    if (tone == "err") {
        return {err(31), 0xff7b5051, radius, true};
    }
    if (tone == "busy") {
        return {busy(26), 0xff415f70, radius, true};
    }
    return {white(13), 0xff444d57, radius, true};
}

surface tag(const QByteArray& tone) {
    constexpr int radius = 10;
    if (tone == "busy") {
        return {colours::nothing, 0xff415f70, radius, true};
    }
    if (tone == "err") {
        return {colours::nothing, 0xff7b5051, radius, true};
    }
    return {colours::nothing, 0xff4c5660, radius, true};
}

surface radio_row(bool chosen, bool hovered) {
    constexpr int radius = 8;
    return {chosen ? busy(19) : white(hovered ? 11 : 0), colours::nothing, radius, false};
}

} // namespace

void paint_surface(QPainter& painter, const QRect& area, const surface& look) {
    constexpr double line = 1.0;
    const double inset = look.bordered ? line / 2 : 0.0;
    const QRectF shape = QRectF(area).adjusted(inset, inset, -inset, -inset);
    const double radius = look.radius > 0 ? look.radius - inset : 0.0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (qAlpha(look.fill) != 0) {
        painter.setBrush(QColor::fromRgba(look.fill));
        painter.drawRoundedRect(shape, radius, radius);
    }
    if (look.bordered && qAlpha(look.border) != 0) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor::fromRgba(look.border), line));
        painter.drawRoundedRect(shape, radius, radius);
    }
    painter.restore();
}

surface surface_of(const QWidget& frame, bool hovered) {
    const QByteArray role = frame.property("role").toByteArray();
    if (role == "box") {
        return {qRgba(27, 35, 45, 219), 0xff2f3842, 10, true};
    }
    if (role == "card") {
        return card(frame.property("fate").toByteArray());
    }
    if (role == "panel") {
        return {0xff232d38, 0xff46505b, 12, true};
    }
    if (role == "pill") {
        return pill(frame.property("tone").toByteArray());
    }
    if (role == "tag") {
        return tag(frame.property("tone").toByteArray());
    }
    if (role == "radiorow") {
        return radio_row(frame.property("chosen").toBool(), hovered);
    }
    return {role == "hairline" ? white(23) : colours::nothing, colours::nothing, 0, false};
}

bool has_border(const QWidget& frame) {
    const QByteArray role = frame.property("role").toByteArray();
    return role == "box" || role == "card" || role == "panel" || role == "pill" || role == "tag";
}
