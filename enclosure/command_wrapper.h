// The wrappers of USB's bulk-only transport: a command before its data, a status behind it.
// Numbers in them are little-endian. Any thread; no errors.
#pragma once

#include "enclosure/scsi.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace enclosure::usb {

inline constexpr std::size_t command_wrapper_size = 31;
inline constexpr std::size_t status_wrapper_size = 13;

struct command_wrapper {
    std::uint32_t tag = 0;
    std::uint32_t length = 0;      // bytes of data that the host expects
    bool in = false;               // towards the host; of no meaning without data
    std::vector<std::uint8_t> cdb; // 1 to 16 bytes
};

enum class command_status : std::uint8_t { passed = 0, failed = 1, phase_error = 2 };

// Nothing unless the wrapper is valid and meaningful: its size, its signature, zeros where
// nothing else may be, unit 0, and a command in it.
std::optional<command_wrapper> decode_command_wrapper(byte_view from);

// `residue`: bytes of the expected data that were not moved.
std::array<std::uint8_t, status_wrapper_size>
encode_status_wrapper(std::uint32_t tag, std::uint32_t residue, command_status status);

} // namespace enclosure::usb
