// The window's picture, ready for painting.
#pragma once

#include <QImage>

// For screens of that many pixels to the point: 800 x 630 pixels, or twice as many each way for
// more than one. The pixels are those of the program's file, which is read where they are painted.
// Interface thread.
QImage background(double ratio);

// Hands back the memory of a background that has been painted, until it is painted again; nothing
// for any other picture. Interface thread.
void rest_background(const QImage& painted);
