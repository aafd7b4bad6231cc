#include "app/tab_look.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionTab>
#include <QTabBar>

#include "app/colours.h"

namespace {

constexpr int gap = 4; // to the next tab
constexpr int radius = 10;
constexpr int border = 1;
constexpr int top_border = 2; // the light of the front tab
constexpr int padding = 20;
constexpr int least_width = 90;
constexpr int inner_height = 37;

bool is_front(const QStyleOptionTab& option) {
    return option.state.testFlag(QStyle::State_Selected);
}

bool is_hovered(const QStyleOptionTab& option) {
    return option.state.testFlag(QStyle::State_Enabled) &&
           option.state.testFlag(QStyle::State_MouseOver);
}

// Round at the top, open at the bottom, where the page goes on.
QPainterPath outline(const QRectF& area) {
    QPainterPath path(area.bottomLeft());
    path.lineTo(area.left(), area.top() + radius);
    path.arcTo(QRectF(area.topLeft(), QSizeF(2 * radius, 2 * radius)), 180, -90);
    path.lineTo(area.right() - radius, area.top());
    path.arcTo(QRectF(area.right() - 2 * radius, area.top(), 2 * radius, 2 * radius), 90, -90);
    path.lineTo(area.bottomRight());
    return path;
}

// The light along the top, which runs out in the corners.
void paint_light(QPainter& painter, const QRectF& area) {
    const QPainterPath dark = outline(area.translated(0, top_border));
    painter.fillPath(outline(area).subtracted(dark), QColor(colours::busy));
}

} // namespace

void dress_tabs(QTabBar& bar) {
    QFont font = bar.font();
    font.setWeight(QFont::DemiBold);
    bar.setFont(font);
    bar.setAttribute(Qt::WA_Hover);
}

QSize size_of_tab(const QSize& contents) {
    return {qMax(contents.width(), least_width) + 2 * (padding + border) + gap,
            inner_height + top_border};
}

void paint_tab(QPainter& painter, const QStyleOptionTab& option) {
    const QRectF area = option.rect.adjusted(0, 0, -gap, 0);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (is_front(option)) {
        constexpr double half = border / 2.0;
        const QPainterPath shape = outline(area.adjusted(half, half, -half, 0));
        painter.fillPath(shape, QColor::fromRgba(qRgba(27, 35, 45, 219)));
        painter.setPen(QPen(QColor(0x2f, 0x38, 0x42), border));
        painter.drawPath(shape);
        paint_light(painter, area);
    } else if (is_hovered(option)) {
        painter.fillPath(outline(area.adjusted(border, border, -border, 0)),
                         QColor::fromRgba(qRgba(255, 255, 255, 10)));
    }
    painter.restore();
}

QStyleOptionTab label_of_tab(const QStyleOptionTab& option) {
    QStyleOptionTab label(option);
    label.rect.adjust(padding + border, top_border, -padding - border - gap, 0);
    const QRgb ink = is_front(option) || is_hovered(option) ? colours::text : colours::quiet;
    label.palette.setColor(QPalette::WindowText, QColor(ink));
    label.palette.setColor(QPalette::ButtonText, QColor(ink));
    return label;
}
