// Little-endian numbers in byte buffers, read and written byte by byte, so that neither
// alignment nor the host's byte order matters. Any thread; no errors.
#pragma once

#include <cstddef>
#include <cstdint>

// The unsigned number in the first `width` (1 to 8) bytes at `bytes`, low byte first.
constexpr std::uint64_t load_le(const unsigned char* bytes, std::size_t width) {
    std::uint64_t value = 0;
    for (std::size_t i = width; i > 0; --i) {
        value = (value << 8) | bytes[i - 1];
    }
    return value;
}

constexpr std::uint16_t load_le16(const unsigned char* bytes) {
    return static_cast<std::uint16_t>(load_le(bytes, 2));
}

constexpr std::uint32_t load_le32(const unsigned char* bytes) {
    return static_cast<std::uint32_t>(load_le(bytes, 4));
}

constexpr std::uint64_t load_le48(const unsigned char* bytes) {
    return load_le(bytes, 6);
}

constexpr std::uint64_t load_le64(const unsigned char* bytes) {
    return load_le(bytes, 8);
}

// Stores the low `width` (1 to 8) bytes of `value` at `bytes`, low byte first.
constexpr void store_le(unsigned char* bytes, std::uint64_t value, std::size_t width) {
    for (std::size_t i = 0; i < width; ++i) {
        bytes[i] = static_cast<unsigned char>(value >> (8 * i));
    }
}
