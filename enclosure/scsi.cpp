#include "enclosure/scsi.h"

#include <utility>

namespace enclosure {

std::vector<std::uint8_t> sense_bytes(const sense_code& code) {
    std::vector<std::uint8_t> bytes(sense_size);
    bytes[0] = 0x70; // current error, fixed format
    bytes[2] = code.key;
    bytes[7] = sense_size - 8; // bytes that follow
    bytes[12] = code.code;
    bytes[13] = code.qualifier;
    return bytes;
}

sense_code decode_sense(byte_view bytes) {
    constexpr std::size_t fixed_needed = 14;
    constexpr std::size_t descriptor_needed = 4;
    const unsigned format = bytes.empty() ? 0 : bytes[0] & 0x7FU;
    if ((format == 0x70 || format == 0x71) && bytes.size() >= fixed_needed) {
        return {static_cast<std::uint8_t>(bytes[2] & 0x0FU), bytes[12], bytes[13]};
    }
    if ((format == 0x72 || format == 0x73) && bytes.size() >= descriptor_needed) {
        return {static_cast<std::uint8_t>(bytes[1] & 0x0FU), bytes[2], bytes[3]};
    }
    return sense::none;
}

scsi_reply answered(std::vector<std::uint8_t> data) {
    return {scsi_status::good, {}, std::move(data), {}, false};
}

scsi_reply refused(const sense_code& code) {
    return {scsi_status::check_condition, sense_bytes(code), {}, {}, false};
}

} // namespace enclosure
