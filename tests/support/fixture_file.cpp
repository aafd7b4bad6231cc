#include "tests/support/fixture_file.h"

#include <fstream>
#include <gtest/gtest.h>

namespace {

constexpr std::size_t line_digits = 64;
constexpr std::size_t all_digits = 1024;

// All digits of the file; empty when it is not 16 lines of 64 digits.
std::string digits_of(const std::string& path) {
    std::ifstream file(path);
    std::string digits;
    for (std::string line; std::getline(file, line);) {
        if (line.size() != line_digits ||
            line.find_first_not_of("0123456789abcdef") != std::string::npos) {
            return {};
        }
        digits += line;
    }
    return digits.size() == all_digits ? digits : std::string();
}

} // namespace

sector_bytes fixture_file(const std::string& name) {
    const std::string path = std::string(KESTREL_FIXTURES) + "/" + name + ".hex";
    const std::string digits = digits_of(path);
    sector_bytes bytes{};
    if (digits.empty()) {
        ADD_FAILURE() << path << " is missing, or is not 16 lines of 64 lower-case digits";
        return bytes;
    }
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<unsigned char>(std::stoi(digits.substr(2 * i, 2), nullptr, 16));
    }
    return bytes;
}
