// The window's picture. Interface thread.
#pragma once

#include <QImage>

// For screens of that many pixels to the point: 800 x 630 points. The pixels are those of the
// program's file, which is read where they are painted.
QImage background(double ratio);

// Hands back the memory of a background that has been painted, until it is painted again; nothing
// for any other picture.
void rest_background(const QImage& painted);
