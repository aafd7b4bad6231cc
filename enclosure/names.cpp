#include "enclosure/names.h"

#include "enclosure/problem.h"

#include <algorithm>
#include <array>

namespace enclosure {

namespace {

constexpr std::size_t longest_name = 32;
constexpr std::size_t longest_shown = 100;

bool is_alphanumeric(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

} // namespace

bool is_name(std::string_view name) {
    return !name.empty() && name.size() <= longest_name &&
           std::all_of(name.begin(), name.end(),
                       [](char c) { return is_alphanumeric(c) || c == '_' || c == '-'; });
}

void check_name(std::string_view what, std::string_view name) {
    if (!is_name(name)) {
        throw problem(std::string(what) + " name '" + printable(name) +
                      "' is not usable; take 1 to 32 letters, digits, '_' or '-'");
    }
}

std::string path_element(std::string_view name) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string element;
    for (const char c : name) {
        if (is_alphanumeric(c)) {
            element += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            element += {'_', digits[byte >> 4], digits[byte & 0xF]};
        }
    }
    return element;
}

std::string printable(std::string_view text) {
    std::string shown(text.substr(0, longest_shown));
    std::replace_if(
        shown.begin(), shown.end(), [](char c) { return c < ' ' || c > '~'; }, '?');
    return shown;
}

} // namespace enclosure
