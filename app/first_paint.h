// What can wait until the window is seen.
#pragma once

#include <functional>

class QWidget;

// Calls `action` once, from the event loop, after `widget` has been painted for the first time.
// Interface thread.
void after_first_paint(QWidget* widget, std::function<void()> action);
