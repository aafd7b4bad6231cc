#include "device/mount_table.h"

#include <algorithm>

namespace {

constexpr std::size_t number_field = 2;
constexpr std::size_t place_field = 4;
constexpr std::size_t source_after_dash = 2;

std::vector<std::string_view> parts_of(std::string_view text, std::string_view separators) {
    std::vector<std::string_view> parts;
    std::size_t begin = text.find_first_not_of(separators);
    while (begin != std::string_view::npos) {
        const std::size_t end = std::min(text.find_first_of(separators, begin), text.size());
        parts.push_back(text.substr(begin, end - begin));
        begin = text.find_first_not_of(separators, end);
    }
    return parts;
}

std::vector<std::string_view> fields_of(std::string_view line) {
    return parts_of(line, " \t");
}

bool is_octal(char c) {
    return c >= '0' && c <= '7';
}

// Blanks and the like are written as a backslash and three octal digits.
std::string unescaped(std::string_view field) {
    constexpr std::size_t digits = 3;
    std::string text;
    for (std::size_t at = 0; at < field.size(); ++at) {
        const std::string_view code = field.substr(at + 1, digits);
        if (field[at] == '\\' && code.size() == digits &&
            std::all_of(code.begin(), code.end(), is_octal)) {
            text += static_cast<char>((code[0] - '0') * 64 + (code[1] - '0') * 8 + (code[2] - '0'));
            at += digits;
        } else {
            text += field[at];
        }
    }
    return text;
}

// The optional fields before the dash are of any number.
std::string source_in(const std::vector<std::string_view>& fields) {
    const auto dash = std::find(fields.begin() + place_field + 1, fields.end(), "-");
    const auto left = static_cast<std::size_t>(fields.end() - dash);
    return left > source_after_dash ? unescaped(dash[source_after_dash]) : std::string();
}

} // namespace

std::vector<mount_entry> mounts_of(std::string_view mountinfo) {
    std::vector<mount_entry> entries;
    for (const std::string_view line : parts_of(mountinfo, "\n")) {
        const std::vector<std::string_view> fields = fields_of(line);
        if (fields.size() > place_field) {
            entries.push_back({std::string(fields[number_field]), unescaped(fields[place_field]),
                               source_in(fields)});
        }
    }
    return entries;
}

std::vector<std::string> swaps_of(std::string_view swaps) {
    std::vector<std::string> files;
    for (const std::string_view line : parts_of(swaps, "\n")) {
        if (const std::vector<std::string_view> fields = fields_of(line); !fields.empty()) {
            files.push_back(unescaped(fields.front()));
        }
    }
    return files;
}
