// What a screen reader is told of the parts that the toolkit has no words for.
#pragma once

#include <QList>

class QLabel;

// Makes assistive programs see our widgets as what they are: the window as a window, boxes as named
// groups, mere frames as space. Again does nothing. Interface thread, before the first widget.
void install_spoken_parts();

// A picture is told by what these texts show, whenever it is asked for, but for the empty ones.
// Without any text it is decoration, and nothing is told of it. Interface thread, before the
// picture is first shown.
void tell_picture(QLabel* picture, const QList<QLabel*>& texts);
