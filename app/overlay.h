// Dialogs inside the window.
#pragma once

#include <functional>

class QDialog;
class QWidget;
class input_guard;

// Shows a dialog over the middle of the window's contents, which are dimmed, and serves it and
// nothing else until it is finished; the focus then returns to where it was. `make` is given the
// parent of the dialog, which is deleted afterwards; its default button has the focus, and its
// result() is what is returned. Interface
// thread.
int run_over(QWidget* window, input_guard& guard,
             const std::function<QDialog*(QWidget* parent)>& make);
