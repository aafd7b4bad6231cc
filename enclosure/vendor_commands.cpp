#include "enclosure/vendor_commands.h"

#include "enclosure/numbers.h"

namespace enclosure {

namespace {

constexpr std::size_t at_action = 1;
constexpr std::size_t at_port = 2;
constexpr std::size_t at_flags = 3;
constexpr std::size_t at_address = 4;
constexpr std::size_t at_length = 12;
constexpr std::size_t at_reserved = 14;
constexpr std::size_t at_control = 15;

constexpr std::uint8_t flag_lba48 = 0x01;

bool is_action(std::uint8_t code) {
    return code >= static_cast<std::uint8_t>(vendor_action::read_sector) &&
           code <= static_cast<std::uint8_t>(vendor_action::flush);
}

} // namespace

vendor_cdb encode(const vendor_command& command) {
    vendor_cdb cdb{};
    cdb[0] = vendor_opcode;
    cdb[at_action] = static_cast<std::uint8_t>(command.action);
    cdb[at_port] = command.port;
    cdb[at_flags] = command.lba48 ? flag_lba48 : 0;
    put_be(&cdb[at_address], command.address, 8);
    put_be(&cdb[at_length], command.length, 2);
    return cdb;
}

std::optional<vendor_command> decode_vendor(byte_view cdb) {
    if (!is_action(cdb[at_action]) || !is_port(cdb[at_port]) || cdb[at_flags] > flag_lba48 ||
        cdb[at_reserved] != 0 || cdb[at_control] != 0) {
        return std::nullopt;
    }
    vendor_command command;
    command.action = static_cast<vendor_action>(cdb[at_action]);
    command.port = cdb[at_port];
    command.lba48 = cdb[at_flags] == flag_lba48;
    command.address = get_be(&cdb[at_address], 8);
    command.length = static_cast<std::uint16_t>(get_be(&cdb[at_length], 2));
    return command;
}

} // namespace enclosure
