// Pictures within controls. Interface thread.
#pragma once

class QLatin1String;
class QPainter;
class QRect;

// The picture of that name in the middle of an area, at its own size.
void paint_picture(QPainter& painter, const QRect& area, QLatin1String name);
