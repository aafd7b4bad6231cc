// Words that every part of the enclosure uses.
#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <span>

namespace enclosure {

// Time since the start of the clock in use, which may be the desk's or a virtual one.
using moment = std::chrono::nanoseconds;

inline constexpr std::size_t sector_size = 512; // bytes
inline constexpr int ports = 2;

using sector_data = std::array<std::uint8_t, sector_size>;
using byte_view = std::span<const std::uint8_t>;
using byte_room = std::span<std::uint8_t>;

constexpr bool is_port(std::int64_t port) {
    return port >= 0 && port < ports;
}

} // namespace enclosure
