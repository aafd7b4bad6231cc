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

scsi_reply answered(std::vector<std::uint8_t> data) {
    return {scsi_status::good, {}, std::move(data), {}};
}

scsi_reply refused(const sense_code& code) {
    return {scsi_status::check_condition, sense_bytes(code), {}, {}};
}

} // namespace enclosure
