#include "enclosure/hex.h"

#include <algorithm>

namespace enclosure {

namespace {

// -1 for any other character.
int digit_value(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

} // namespace

std::string to_hex(byte_view bytes) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string hex;
    for (const std::uint8_t byte : bytes) {
        hex += digits[byte >> 4];
        hex += digits[byte & 0xF];
    }
    return hex;
}

bool from_hex(std::string_view digits, byte_room bytes) {
    if (digits.size() != 2 * bytes.size() ||
        !std::all_of(digits.begin(), digits.end(), [](char c) { return digit_value(c) >= 0; })) {
        return false;
    }
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<std::uint8_t>(digit_value(digits[2 * i]) << 4 |
                                             digit_value(digits[2 * i + 1]));
    }
    return true;
}

} // namespace enclosure
