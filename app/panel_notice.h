// A message panel told on the desktop as well.
#pragma once

#include "app/notices.h"

class main_window;

// For as long as a panel is open: shows a notice if the window is not in front when the panel
// opens, and takes it away when the panel has been answered. Interface thread.
class panel_notice {
public:
    // A window that is not there yet tells nothing. `desktop` outlives the panel.
    panel_notice(notices& desktop, const main_window* window, const notice& what);
    ~panel_notice();
    panel_notice(const panel_notice&) = delete;
    panel_notice& operator=(const panel_notice&) = delete;

private:
    notices& desktop_;
    int shown_ = 0; // none
};
