// What tabs look like: a bare bar over a framed page. Interface thread.
#pragma once

#include <QSize>

class QPainter;
class QStyleOptionTab;
class QTabBar;

void dress_tabs(QTabBar& bar);
// A tab around contents of that size, with the gap to the next one; pixels.
QSize size_of_tab(const QSize& contents);
void paint_tab(QPainter& painter, const QStyleOptionTab& option);
// The same tab as the toolkit has to be given it to put text and icon in their places.
QStyleOptionTab label_of_tab(const QStyleOptionTab& option);
