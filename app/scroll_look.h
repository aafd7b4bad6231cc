// What scroll bars look like: a handle alone. Interface thread.
#pragma once

#include <QRect>
#include <QStyle>

class QPainter;
class QStyleOptionSlider;

constexpr int width_of_scroll_bar = 10; // pixels, with the room around the handle

void paint_scroll_bar(QPainter& painter, const QStyleOptionSlider& option);
// There are no arrows; before and after the handle a click goes a page on.
QRect part_of_scroll_bar(const QStyleOptionSlider& option, QStyle::SubControl part);
