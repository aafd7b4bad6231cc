#include "app/display.h"

#include <cstdlib>
#include <string_view>

namespace {

bool is_set(const char* variable) {
    const char* value = std::getenv(variable); // NOLINT(concurrency-mt-unsafe): one thread yet
    return value != nullptr && *value != '\0';
}

} // namespace

bool display_at_hand(int argc, char** argv) {
    for (int i = 1; i + 1 < argc; ++i) {
        const std::string_view option = argv[i];
        if (option == "-platform" || option == "--platform") {
            return true;
        }
    }
    return is_set("QT_QPA_PLATFORM") || is_set("DISPLAY") || is_set("WAYLAND_DISPLAY");
}
