// The program's pictures, by the names of the files they are made from, such as "disk.png". Their
// pixels stand in the program's file as they are painted (art/ready_pictures), so that none is
// unpacked at the start, and the toolkit loads no plugins for picture formats. Interface thread.
#pragma once

#include <QIcon>
#include <QImage>
#include <QString>

class QPainter;
class QRect;

// For screens of that many pixels to the point: of twice the pixels each way for more than one.
// Null where there is no such picture. The pixels are those of the file: they last, and who changes
// the image changes a copy.
QImage picture(const QString& name, double ratio);

// For every screen that is attached; where it is disabled, as faint as the style has it. Empty
// where there is no such picture.
QIcon picture_icon(const QString& name);
// The same, in full colour even where it is disabled.
QIcon coloured_icon(const QString& name);

// In the middle of an area, at its own size.
void paint_picture(QPainter& painter, const QRect& area, const QString& name);

// For tests: as if there were no pictures, until they are shown again.
void hide_pictures(bool hidden);
