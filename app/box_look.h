// What the box looks like that opens a list, and the list. Interface thread.
#pragma once

#include <QRect>
#include <QStyle>

class QAbstractItemView;
class QComboBox;
class QPainter;
class QStyleOptionComboBox;
class QStyleOptionViewItem;
class QWidget;

// Pixels.
constexpr int room_around_list = 5; // with the border
constexpr int height_of_list_row = 32;
constexpr int sides_of_list_row = 8;

// Its font and that of its list, and the colours of its text.
void dress_box(QComboBox& box);

void paint_box(QPainter& painter, const QStyleOptionComboBox& option);
// The text's place and the arrow's; the whole box for the rest.
QRect part_of_box(const QStyleOptionComboBox& option, QStyle::SubControl part);

// Whether a widget is the frame around an open list.
bool is_frame_of_list(const QWidget& widget);
// Whether it is within one.
bool is_in_open_list(const QWidget& widget);
void dress_list(QAbstractItemView& list);
void paint_frame_of_list(QPainter& painter, const QRect& area);
void paint_list_row(QPainter& painter, const QStyleOptionViewItem& option);
