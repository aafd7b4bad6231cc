// Whether all texts of a window have the room that they need.
#pragma once

#include <QStringList>

class QWidget;

// A line for every visible text that is cut and for every two that overlap, in words. Texts are
// measured as they are painted, at the scale of the screen.
QStringList misfits(const QWidget& window);
