#include "enclosure/bridge_commands.h"

#include <algorithm>

namespace enclosure {

namespace {

bridge_commands::outcome outcome_without_answer(delivery state) {
    switch (state) {
    case delivery::gone:
        return bridge_commands::outcome::gone;
    case delivery::not_permitted:
        return bridge_commands::outcome::not_permitted;
    default:
        return bridge_commands::outcome::no_answer;
    }
}

} // namespace

bridge_commands::outcome bridge_commands::send(std::uint32_t handle, const vendor_command& command,
                                               byte_view out, byte_room in) {
    const exchange made =
        way_.execute(handle, encode(command), out, static_cast<std::uint32_t>(in.size()));
    if (made.state != delivery::answered) {
        return outcome_without_answer(made.state);
    }
    if (made.reply.status != scsi_status::good) {
        return decode_sense(made.reply.sense) == sense::no_medium ? outcome::no_disk
                                                                  : outcome::failed;
    }
    if (made.cut_short || made.reply.data_in.size() != in.size()) {
        return outcome::failed;
    }
    std::copy(made.reply.data_in.begin(), made.reply.data_in.end(), in.begin());
    return outcome::done;
}

bridge_commands::outcome bridge_commands::read_sector(std::uint32_t handle, int port,
                                                      std::uint64_t lba, bool lba48,
                                                      byte_room data) {
    return send(
        handle,
        {vendor_action::read_sector, static_cast<std::uint8_t>(port), lba48, lba, sector_size}, {},
        data);
}

bridge_commands::outcome bridge_commands::write_sector(std::uint32_t handle, int port,
                                                       std::uint64_t lba, bool lba48,
                                                       byte_view data) {
    return send(
        handle,
        {vendor_action::write_sector, static_cast<std::uint8_t>(port), lba48, lba, sector_size},
        data, {});
}

bridge_commands::outcome bridge_commands::identify(std::uint32_t handle, int port, byte_room data) {
    return send(handle,
                {vendor_action::identify, static_cast<std::uint8_t>(port), false, 0, sector_size},
                {}, data);
}

bridge_commands::outcome bridge_commands::read_register(std::uint32_t handle, std::uint32_t address,
                                                        byte_room data) {
    return send(
        handle,
        {vendor_action::read_register, 0, false, address, static_cast<std::uint16_t>(data.size())},
        {}, data);
}

bridge_commands::outcome bridge_commands::rebuild_status(std::uint32_t handle, byte_room data) {
    return send(handle, {vendor_action::rebuild_status, 0, false, 0, rebuild_status_size}, {},
                data);
}

bridge_commands::outcome bridge_commands::warm_boot(std::uint32_t handle) {
    return send(handle, {vendor_action::warm_boot, 0, false, 0, 0}, {}, {});
}

bridge_commands::outcome bridge_commands::flush(std::uint32_t handle, int port) {
    return send(handle, {vendor_action::flush, static_cast<std::uint8_t>(port), false, 0, 0}, {},
                {});
}

} // namespace enclosure
