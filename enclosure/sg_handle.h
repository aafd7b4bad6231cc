// The handle of a bridge behind a SCSI generic node, as docs/formats.md lays it out. The registry
// numbers bridges alike (device/sg_handle.h, device/bridge_node.h). Any thread; no errors.
#pragma once

#include "enclosure/sg_nodes.h"

#include <cstdint>

namespace enclosure {

constexpr std::uint32_t sg_handle_mark = 0x80000000; // no other bridge has this bit
constexpr std::uint32_t sg_minor_bits = 15;

// The low 15 bits of the node's number and the low 16 bits of its arrival's.
constexpr std::uint32_t sg_handle_of(const sg_node& node) {
    constexpr std::uint32_t minor_mask = (1U << sg_minor_bits) - 1;
    const auto arrival = static_cast<std::uint32_t>(node.arrival & 0xFFFF);
    return sg_handle_mark | arrival << sg_minor_bits | (node.minor & minor_mask);
}

// False for the handles of emulated bridges.
constexpr bool is_sg_handle(std::uint32_t handle) {
    return (handle & sg_handle_mark) != 0;
}

} // namespace enclosure
