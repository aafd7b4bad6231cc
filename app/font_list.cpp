#include "app/font_list.h"

#include <clocale>
#include <cstdlib>
#include <fontconfig/fontconfig.h>
#include <system_error>

namespace {

// The toolkit's part for X11 takes it away once it has read it.
bool environment_will_change() {
    return std::getenv("DESKTOP_STARTUP_ID") != nullptr; // NOLINT(concurrency-mt-unsafe): one yet
}

} // namespace

font_list::font_list() {
    std::setlocale(LC_ALL, ""); // NOLINT(concurrency-mt-unsafe): one thread yet
    if (environment_will_change()) {
        return;
    }
    try {
        // A list that cannot be read is met again by the toolkit, which tells it.
        reading_ = std::thread([] { FcInit(); });
    } catch (const std::system_error&) {
        return;
    }
}

font_list::~font_list() {
    wait();
}

void font_list::wait() {
    if (reading_.joinable()) {
        reading_.join();
    }
}
