// Lines on the standard streams.
#pragma once

#include <string_view>

// Write `text` as it stands, whole, and flush. The process leaves without running the
// library's own flush, and several threads print. Any thread; a closed stream is ignored.
void print_out(std::string_view text);
void print_err(std::string_view text);
