#include "app/box_look.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QStyleOptionComboBox>
#include <QStyleOptionViewItem>

#include "app/colours.h"
#include "app/pictures.h"
#include "app/surfaces.h"

namespace {

constexpr int border = 1;
constexpr int arrow_width = 32;
constexpr int left_of_text = 10;
constexpr int right_of_text = 8;

QRgb border_of(QStyle::State state) {
    if (!state.testFlag(QStyle::State_Enabled)) {
        return 0xff333c46;
    }
    return state.testFlag(QStyle::State_MouseOver) ? 0xff5b6570 : 0xff47525d;
}

} // namespace

void dress_box(QComboBox& box) {
    QFont font = box.font();
    font.setWeight(QFont::Medium);
    box.setFont(font);
    QPalette palette = box.palette();
    palette.setColor(QPalette::Highlight, Qt::transparent); // nobody edits the text
    QColor hint(colours::text);
    hint.setAlphaF(0.5F);
    palette.setColor(QPalette::PlaceholderText, hint);
    box.setPalette(palette);
}

void paint_box(QPainter& painter, const QStyleOptionComboBox& option) {
    constexpr int radius = 8;
    paint_surface(painter, option.rect,
                  {qRgba(13, 18, 24, 184), border_of(option.state), radius, true});
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    paint_picture(painter, part_of_box(option, QStyle::SC_ComboBoxArrow),
                  enabled ? QStringLiteral("chevron-down.png")
                          : QStringLiteral("chevron-down-off.png"));
}

QRect part_of_box(const QStyleOptionComboBox& option, QStyle::SubControl part) {
    const QRect inside = option.rect.adjusted(border, border, -border, -border);
    QRect place = option.rect;
    if (part == QStyle::SC_ComboBoxArrow) {
        place = inside.adjusted(inside.width() - arrow_width, 0, 0, 0);
    } else if (part == QStyle::SC_ComboBoxEditField) {
        place = inside.adjusted(left_of_text, 0, -right_of_text - arrow_width, 0);
    }
    return QStyle::visualRect(option.direction, option.rect, place);
}

bool is_frame_of_list(const QWidget& widget) {
    return widget.inherits("QComboBoxPrivateContainer");
}

bool is_in_open_list(const QWidget& widget) {
    return is_frame_of_list(*widget.window());
}

void dress_list(QAbstractItemView& list) {
    list.setFrameShape(QFrame::NoFrame);
    list.viewport()->setAutoFillBackground(false);
}

void paint_frame_of_list(QPainter& painter, const QRect& area) {
    painter.fillRect(area, QColor(0x56, 0x61, 0x6c));
    painter.fillRect(area.adjusted(border, border, -border, -border), QColor(0x2d, 0x3a, 0x47));
}

void paint_list_row(QPainter& painter, const QStyleOptionViewItem& option) {
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    constexpr int radius = 6;
    if (selected) {
        paint_surface(painter, option.rect, {0xff3b4d5b, colours::nothing, radius, false});
    }
    constexpr int toolkits_room = 5; // which it has in its size of a row as well
    constexpr int sides = sides_of_list_row + toolkits_room;
    const QRect area = option.rect.adjusted(sides, 0, -sides, 0);
    painter.save();
    painter.setPen(selected ? QColor(Qt::white) : QColor(colours::text));
    painter.setFont(option.font);
    painter.drawText(
        area, Qt::TextSingleLine | Qt::AlignVCenter | Qt::AlignLeft,
        option.fontMetrics.elidedText(option.text, option.textElideMode, area.width()));
    painter.restore();
}
