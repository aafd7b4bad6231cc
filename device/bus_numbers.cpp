#include "device/bus_numbers.h"

#include <charconv>
#include <optional>

namespace {

constexpr std::uint32_t highest_number = 255; // of a bus, and of a port
constexpr int nibble = 4;
constexpr int bus_shift = 24;

// The whole text as a number in the base.
std::optional<std::uint64_t> number_in(std::string_view text, int base) {
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    if (error != std::errc{} || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return number;
}

// A bus or a port.
std::optional<std::uint32_t> place_in(std::string_view text) {
    const std::optional<std::uint64_t> number = number_in(text, 10);
    if (!number || *number == 0 || *number > highest_number) {
        return std::nullopt;
    }
    return static_cast<std::uint32_t>(*number);
}

// One port a nibble, from the highest nibble below the bus on. Root hubs alone have ports above 15;
// the upper half of such a number goes into the lowest nibble.
std::optional<std::uint32_t> port_bits(std::string_view ports) {
    std::uint32_t bits = 0;
    for (int shift = bus_shift - nibble; shift >= 0; shift -= nibble) {
        const std::size_t dot = ports.find('.');
        const std::optional<std::uint32_t> port = place_in(ports.substr(0, dot));
        if (!port) {
            return std::nullopt;
        }
        bits ^= (*port & 0xFU) << shift | *port >> nibble;
        if (dot == std::string_view::npos) {
            return bits;
        }
        ports.remove_prefix(dot + 1);
    }
    return std::nullopt;
}

} // namespace

std::uint64_t hex_number(std::string_view text, std::uint64_t most) {
    if (text.starts_with("0x")) {
        text.remove_prefix(2);
    }
    const std::optional<std::uint64_t> number = number_in(text, 16);
    return number && *number <= most ? *number : 0;
}

std::int32_t location_number(std::string_view bus, std::string_view ports) {
    const std::optional<std::uint32_t> bus_number = place_in(bus);
    const std::optional<std::uint32_t> bits = port_bits(ports);
    return bus_number && bits ? static_cast<std::int32_t>(*bus_number << bus_shift | *bits) : 0;
}
