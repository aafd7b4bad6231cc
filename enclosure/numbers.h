// Numbers in byte buffers: little-endian on disks and in replies, big-endian in commands. The
// caller vouches for the buffer. Any thread; no errors.
#pragma once

#include <cstddef>
#include <cstdint>

namespace enclosure {

// The number in `width` (1 to 8) bytes, low byte first.
constexpr std::uint64_t get_le(const std::uint8_t* from, std::size_t width) {
    std::uint64_t value = 0;
    for (std::size_t i = width; i > 0; --i) {
        value = value << 8 | from[i - 1];
    }
    return value;
}

// The number in `width` (1 to 8) bytes, high byte first.
constexpr std::uint64_t get_be(const std::uint8_t* from, std::size_t width) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < width; ++i) {
        value = value << 8 | from[i];
    }
    return value;
}

// Stores the low `width` (1 to 8) bytes of `value`, low byte first.
constexpr void put_le(std::uint8_t* to, std::uint64_t value, std::size_t width) {
    for (std::size_t i = 0; i < width; ++i) {
        to[i] = static_cast<std::uint8_t>(value >> (8 * i));
    }
}

// Stores the low `width` (1 to 8) bytes of `value`, high byte first.
constexpr void put_be(std::uint8_t* to, std::uint64_t value, std::size_t width) {
    for (std::size_t i = 0; i < width; ++i) {
        to[width - 1 - i] = static_cast<std::uint8_t>(value >> (8 * i));
    }
}

} // namespace enclosure
