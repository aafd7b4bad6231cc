#include "app/display_text.h"

#include "util/functions.h"

std::string device_text(const std::string& bytes) {
    constexpr char16_t first_two_byte_character = 0x80;
    std::string utf8;
    for (const char16_t character : stringtonsstring(bytes)) {
        if (character < first_two_byte_character) {
            utf8 += static_cast<char>(character);
        } else {
            utf8 += static_cast<char>(0xC0 | (character >> 6));
            utf8 += static_cast<char>(0x80 | (character & 0x3F));
        }
    }
    return utf8;
}

std::string filled(std::string text, const std::string& value) {
    constexpr std::string_view place = "%1";
    if (const std::size_t at = text.find(place); at != std::string::npos) {
        text.replace(at, place.size(), value);
    }
    return text;
}
