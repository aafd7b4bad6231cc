#include "app/panel_notice.h"

#include "app/main_window.h"

panel_notice::panel_notice(notices& desktop, const main_window* window, const notice& what)
    : desktop_(desktop) {
    if (window != nullptr && !window->in_front()) {
        shown_ = desktop_.show(what);
    }
}

panel_notice::~panel_notice() {
    if (shown_ != 0) {
        desktop_.close(shown_);
    }
}
