// The guide for a failed disk.
#pragma once

#include "model/services.h"

class QWidget;
class input_guard;

// Opens it over the window's contents and returns when it has been closed, by its button, Return or
// Escape. Interface thread.
void run_guide(QWidget* window, input_guard& guard, const text_lookup& texts);
