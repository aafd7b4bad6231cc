// What the window's frames and controls are painted on. Interface thread.
#pragma once

#include <QRgb>

class QPainter;
class QRect;
class QWidget;

// A rounded area with a border of a pixel.
struct surface {
    QRgb fill;
    QRgb border; // opaque: half-transparent round borders show dots at the joints
    int radius;  // pixels
    bool bordered;
};

void paint_surface(QPainter& painter, const QRect& area, const surface& look);

// Of a frame or a tag, as its properties say now; nothing to paint when it has no role.
surface surface_of(const QWidget& frame, bool hovered);
// Whether a frame of this role has a border, within which its contents lie.
bool has_border(const QWidget& frame);
