#include "app/display_text.h"

#include <algorithm>

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

std::string filled(const std::string& text, std::initializer_list<std::string> values) {
    std::string result;
    std::size_t from = 0;
    for (std::size_t at = text.find('%'); at != std::string::npos; at = text.find('%', at + 1)) {
        const std::size_t place =
            at + 1 < text.size() ? static_cast<unsigned char>(text[at + 1]) : 0;
        if (place < '1' || place - '1' >= values.size()) {
            continue;
        }
        result.append(text, from, at - from).append(values.begin()[place - '1']);
        from = at + 2;
    }
    return result.append(text, from);
}

std::string number_of(std::size_t port) {
    return inttostring(port + 1);
}

std::string time_of_record(const std::array<unsigned char, raid_time_size>& stamp) {
    constexpr std::size_t digits = 14; // YYYYMMDDhhmmss
    const std::string text(stamp.begin(), stamp.begin() + digits);
    const bool is_time = std::all_of(text.begin(), text.end(), [](char character) {
        return character >= '0' && character <= '9';
    });
    const auto within = [&text](std::size_t place, const char* least, const char* most) {
        const std::string number = text.substr(place, 2);
        return number >= least && number <= most;
    };
    if (!is_time || !within(4, "01", "12") || !within(6, "01", "31") || !within(8, "00", "23") ||
        !within(10, "00", "59")) {
        return {};
    }
    return text.substr(0, 4) + "-" + text.substr(4, 2) + "-" + text.substr(6, 2) + " " +
           text.substr(8, 2) + ":" + text.substr(10, 2);
}
