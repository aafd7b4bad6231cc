#include "util/functions.h"

#include <algorithm>
#include <cstring>

std::string inttostring(std::uint64_t value) {
    return std::to_string(value);
}

std::string inttohexstring(std::int64_t value, int width) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    std::int64_t missing = width; // wider than int: it may be lowered below INT_MIN
    for (; value > 0; value >>= 4, --missing) {
        text.insert(text.begin(), digits[static_cast<std::size_t>(value % 16)]);
    }
    if (missing > 0) {
        text.insert(0, static_cast<std::size_t>(missing), '0');
    }
    return text;
}

void trim(std::string& text) {
    constexpr std::string_view blanks = " \n\t";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string::npos) {
        text.clear();
        return;
    }
    text = text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool str_equal(const unsigned char* a, const unsigned char* b, int n) {
    return n <= 0 || std::memcmp(a, b, static_cast<std::size_t>(n)) == 0;
}

void ppcReverse(unsigned char* bytes, int size) {
    if (size > 0) {
        std::reverse(bytes, bytes + size);
    }
}

int architecture_of(std::optional<std::int32_t> cputype) {
    constexpr std::int32_t x86 = 7;
    constexpr std::int32_t powerpc = 18;
    if (!cputype || *cputype == x86) {
        return 0;
    }
    return *cputype == powerpc ? 1 : 2;
}

int getArchitecture() {
#if defined(__i386__) || defined(__x86_64__)
    return architecture_of(7);
#elif defined(__powerpc__) && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
    return architecture_of(18);
#else
    return architecture_of(-1);
#endif
}

std::string cfstringtostring(std::u16string_view text) {
    constexpr std::size_t most = 99; // a 100-byte buffer with its terminator
    text = text.substr(0, text.find(u'\0'));
    if (std::any_of(text.begin(), text.end(), [](char16_t c) { return c > 0x7F; })) {
        return {};
    }
    text = text.substr(0, most);
    return {text.begin(), text.end()};
}

std::u16string stringtonsstring(const std::string& text) {
    std::u16string result;
    for (const char c : text) {
        if (c == '\0') {
            break;
        }
        result.push_back(static_cast<unsigned char>(c));
    }
    return result;
}
