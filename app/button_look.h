// What push buttons look like, by their kind and state. Interface thread.
#pragma once

#include <QRgb>

#include "app/surfaces.h"

class QStyleOptionButton;
class QWidget;

struct button_look {
    surface ground;
    QRgb ink;
    bool underlined;
};

// `button` has the properties "kind" and "running".
button_look look_of_button(const QStyleOptionButton& option, const QWidget& button);

// Between a button's edge and its contents at the left and the right, with the border; pixels.
int padding_of_button(const QWidget& button);
// The border alone, above and below; pixels.
int border_of_button(const QWidget& button);

// Its font.
void dress_button(QWidget& button);
