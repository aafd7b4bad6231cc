// Names of exported devices on USB/IP.
#pragma once

#include <cstdint>
#include <string>

namespace enclosure {

// All exported enclosures of a desk are on one bus.
inline constexpr std::uint32_t export_bus = 1;

// The name of the device with this number on the desk. Any thread; no errors.
inline std::string busid_of(std::uint32_t number) {
    return std::to_string(export_bus) + "-" + std::to_string(number);
}

} // namespace enclosure
