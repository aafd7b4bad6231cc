// The chip's own commands, in which the access library's operations travel. The bytes are laid
// out in docs/formats-enclosure.md.
#pragma once

#include "enclosure/scsi.h"

#include <array>
#include <cstdint>
#include <optional>

namespace enclosure {

inline constexpr std::uint8_t vendor_opcode = 0xC4;

enum class vendor_action : std::uint8_t {
    read_sector = 0x01,
    write_sector = 0x02,
    identify = 0x03,
    read_register = 0x04,
    rebuild_status = 0x05,
    warm_boot = 0x06,
    flush = 0x07,
};

inline constexpr std::uint32_t presence_register_0 = 0x7095;
inline constexpr std::uint32_t presence_register_1 = 0x709D;
inline constexpr std::size_t rebuild_status_size = 12;
inline constexpr std::uint64_t sectors_28bit = 1ULL << 28;

using vendor_cdb = std::array<std::uint8_t, longest_cdb>;

struct vendor_command {
    vendor_action action = vendor_action::read_sector;
    std::uint8_t port = 0;
    bool lba48 = false;
    std::uint64_t address = 0; // LBA, or register
    std::uint16_t length = 0;  // bytes in or out
};

vendor_cdb encode(const vendor_command& command);

// Nothing when a field has a value that does not exist or a reserved byte is not zero. `cdb` has
// 16 bytes.
std::optional<vendor_command> decode_vendor(byte_view cdb);

} // namespace enclosure
