// What a SCSI command answers.
#pragma once

#include "enclosure/units.h"

#include <cstdint>
#include <vector>

namespace enclosure {

inline constexpr std::size_t longest_cdb = 16;
inline constexpr std::size_t sense_size = 18;     // fixed format
inline constexpr std::size_t longest_sense = 252; // that a device may send

enum class scsi_status : std::uint8_t { good = 0x00, check_condition = 0x02 };

struct sense_code {
    std::uint8_t key = 0;
    std::uint8_t code = 0;
    std::uint8_t qualifier = 0;

    bool operator==(const sense_code&) const = default;
};

namespace sense {
inline constexpr sense_code none{0x00, 0x00, 0x00};
inline constexpr sense_code not_ready{0x02, 0x04, 0x03}; // manual intervention required
inline constexpr sense_code no_medium{0x02, 0x3A, 0x00};
inline constexpr sense_code write_failed{0x03, 0x0C, 0x00};
inline constexpr sense_code read_failed{0x03, 0x11, 0x00};
inline constexpr sense_code invalid_opcode{0x05, 0x20, 0x00};
inline constexpr sense_code lba_out_of_range{0x05, 0x21, 0x00};
inline constexpr sense_code invalid_field{0x05, 0x24, 0x00};
inline constexpr sense_code no_saved_values{0x05, 0x39, 0x00};
} // namespace sense

struct scsi_reply {
    scsi_status status = scsi_status::good;
    std::vector<std::uint8_t> sense; // 18 bytes, or empty when the status is good
    std::vector<std::uint8_t> data_in;
    moment delay{0};         // the answer arrives that much later
    bool unanswered = false; // it never arrives: nothing else in here counts
};

// The 18 bytes for a code.
std::vector<std::uint8_t> sense_bytes(const sense_code& code);

// The code in sense data of either format; `none` when there is none in it. Any bytes are safe.
sense_code decode_sense(byte_view bytes);

scsi_reply answered(std::vector<std::uint8_t> data = {});
scsi_reply refused(const sense_code& code);

} // namespace enclosure
