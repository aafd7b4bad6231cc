#include "app/font_list.h"

#include <fontconfig/fontconfig.h>

// A list that cannot be read is met again by the toolkit, which tells it.
font_list::font_list() : reading_([] { FcInit(); }) {}

font_list::~font_list() {
    wait();
}

void font_list::wait() {
    if (reading_.joinable()) {
        reading_.join();
    }
}
