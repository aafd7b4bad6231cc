#include "util/print.h"

#include <cstdio>

namespace {

void print(std::FILE* stream, std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), stream);
    std::fflush(stream);
}

} // namespace

void print_out(std::string_view text) {
    print(stdout, text);
}

void print_err(std::string_view text) {
    print(stderr, text);
}
