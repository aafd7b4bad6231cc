#include "enclosure/volume_commands.h"

#include "enclosure/numbers.h"
#include "enclosure/opcodes.h"

namespace enclosure {

block_range range_in(byte_view cdb) {
    if (cdb_length(cdb[0]) == 10) {
        return {get_be(&cdb[2], 4), get_be(&cdb[7], 2)};
    }
    return {get_be(&cdb[2], 8), get_be(&cdb[10], 4)};
}

bool asks_for_protection(byte_view cdb) {
    return (cdb[1] & 0xE0) != 0;
}

bool forces_unit_access(byte_view cdb) {
    return (cdb[1] & 0x08) != 0;
}

bool compares_bytes(byte_view cdb) {
    return (cdb[1] & 0x06) != 0;
}

} // namespace enclosure
