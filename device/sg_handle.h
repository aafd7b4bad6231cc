// The handles of bridges that are reached through a SCSI generic node, and of emulated ones.
#pragma once

#include <cstdint>

inline constexpr std::uint32_t sg_major = 21;
inline constexpr std::uint32_t sg_most_minor = 0x7FFF; // the kernel makes no more nodes

// From the node's minor number and the low 16 bits of the number of its arrival (docs/formats.md),
// so that a node that has come again has another handle. Never 0.
constexpr std::uint32_t sg_handle(std::uint32_t minor, std::uint64_t arrival) {
    return 0x80000000U | static_cast<std::uint32_t>(arrival & 0xFFFFU) << 15 |
           (minor & sg_most_minor);
}

// Whether it is one of the emulated bridges'.
constexpr bool is_emulated_handle(std::uint32_t handle) {
    constexpr std::uint32_t first = 0x4B520001;
    constexpr std::uint32_t last = 0x4BFFFFFF;
    return handle >= first && handle <= last;
}

// Whether it is a node's.
constexpr bool is_sg_handle(std::uint32_t handle) {
    return (handle & 0x80000000U) != 0;
}

// The node's minor number.
constexpr std::uint32_t sg_minor(std::uint32_t handle) {
    return handle & sg_most_minor;
}
