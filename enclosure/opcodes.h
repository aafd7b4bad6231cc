// The commands that the chip understands.
#pragma once

#include <cstddef>
#include <cstdint>

namespace enclosure {

enum opcode : std::uint8_t {
    op_test_unit_ready = 0x00,
    op_request_sense = 0x03,
    op_inquiry = 0x12,
    op_mode_sense_6 = 0x1A,
    op_start_stop_unit = 0x1B,
    op_prevent_removal = 0x1E,
    op_read_capacity_10 = 0x25,
    op_read_10 = 0x28,
    op_write_10 = 0x2A,
    op_verify_10 = 0x2F,
    op_synchronize_cache_10 = 0x35,
    op_mode_sense_10 = 0x5A,
    op_read_16 = 0x88,
    op_write_16 = 0x8A,
    op_synchronize_cache_16 = 0x91,
    op_service_action_in_16 = 0x9E,
    op_report_luns = 0xA0,
};

// Whether the byte is one of these or the vendor command's. Any thread; no errors.
bool is_known(std::uint8_t code);

// The length in bytes, 6 to 16, that the opcode's group prescribes; 0 for groups without one. Any
// thread; no errors.
std::size_t cdb_length(std::uint8_t code);

} // namespace enclosure
