#include "enclosure/sizes.h"

#include "enclosure/mirror_copy.h"
#include "enclosure/names.h"
#include "enclosure/problem.h"
#include "enclosure/units.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>

namespace enclosure {

namespace {

struct unit {
    std::string_view name;
    double bytes;
};

constexpr std::array<unit, 5> units = {
    {{"TB", 1e12}, {"GB", 1e9}, {"MB", 1e6}, {"kB", 1e3}, {"B", 1}}};

struct amount {
    double number;
    std::string_view unit;
};

std::optional<amount> split(std::string_view text) {
    double number = 0;
    const auto [end, trouble] =
        std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    if (trouble != std::errc() || !std::isfinite(number) || number < 0) {
        return std::nullopt;
    }
    std::string_view rest = text.substr(static_cast<std::size_t>(end - text.data()));
    while (rest.starts_with(' ')) {
        rest.remove_prefix(1);
    }
    return amount{number, rest};
}

} // namespace

std::uint64_t sectors_of(std::string_view text) {
    constexpr double most = 1e18; // bytes; what a disk may hold is checked elsewhere
    if (const auto given = split(text)) {
        if (given->unit.empty() && given->number <= most / sector_size &&
            std::floor(given->number) == given->number) {
            return static_cast<std::uint64_t>(given->number);
        }
        for (const unit& one : units) {
            if (given->unit == one.name && given->number * one.bytes <= most) {
                return static_cast<std::uint64_t>(given->number * one.bytes) / sector_size;
            }
        }
    }
    throw problem("'" + printable(text) +
                  "' is no disk size; give one such as 2TB, 500GB or a "
                  "number of sectors");
}

std::uint64_t rate_of(std::string_view text) {
    if (text == "unlimited") {
        return mirror_copy::unlimited;
    }
    constexpr double megabyte = 1e6;
    const auto given = split(text);
    if (!given || !given->unit.empty() || given->number * megabyte < 1 ||
        given->number * megabyte > static_cast<double>(mirror_copy::highest_rate)) {
        throw problem("'" + printable(text) +
                      "' is no rate; give up to 1000 (MB/s) or 'unlimited'");
    }
    return static_cast<std::uint64_t>(given->number * megabyte);
}

std::string size_text(std::uint64_t sectors) {
    const double bytes = static_cast<double>(sectors) * static_cast<double>(sector_size);
    const unit* shown = &units.back();
    for (const unit& one : units) {
        if (bytes >= one.bytes) {
            shown = &one;
            break;
        }
    }
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                   bytes / shown->bytes, std::chars_format::fixed, 1);
    return std::string(digits.data(), end.ptr) + " " + std::string(shown->name);
}

} // namespace enclosure
