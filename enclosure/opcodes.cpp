#include "enclosure/opcodes.h"

#include "enclosure/scsi.h"
#include "enclosure/vendor_commands.h"

namespace enclosure {

bool is_known(std::uint8_t code) {
    switch (code) {
    case op_test_unit_ready:
    case op_request_sense:
    case op_inquiry:
    case op_mode_sense_6:
    case op_start_stop_unit:
    case op_prevent_removal:
    case op_read_capacity_10:
    case op_read_10:
    case op_write_10:
    case op_verify_10:
    case op_synchronize_cache_10:
    case op_mode_sense_10:
    case op_read_16:
    case op_write_16:
    case op_synchronize_cache_16:
    case op_service_action_in_16:
    case op_report_luns:
    case vendor_opcode:
        return true;
    default:
        return false;
    }
}

std::size_t cdb_length(std::uint8_t code) {
    switch (code >> 5) {
    case 0:
        return 6;
    case 1:
    case 2:
        return 10;
    case 4:
        return 16;
    case 5:
        return 12;
    case 6: // vendor
        return longest_cdb;
    default:
        return 0;
    }
}

} // namespace enclosure
