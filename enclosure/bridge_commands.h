// The per-device operations as commands to the chip.
#pragma once

#include "enclosure/transport.h"
#include "enclosure/vendor_commands.h"

#include <cstdint>

namespace enclosure {

// Each operation says how the command went. One thread at a time, as the transport.
class bridge_commands {
public:
    enum class outcome {
        done,          // answered with status good, and all data went their way
        failed,        // refused, or answered though less than all did
        no_disk,       // refused, since there is no disk in the bay
        no_answer,     // in time or unharmed
        not_permitted, // to this user
        gone,          // the bridge has left
    };

    explicit bridge_commands(transport& way) : way_(way) {}

    // `data` has 512 bytes.
    outcome read_sector(std::uint32_t handle, int port, std::uint64_t lba, bool lba48,
                        byte_room data);
    outcome write_sector(std::uint32_t handle, int port, std::uint64_t lba, bool lba48,
                         byte_view data);
    outcome identify(std::uint32_t handle, int port, byte_room data);

    // `data` has 1 to 4 bytes.
    outcome read_register(std::uint32_t handle, std::uint32_t address, byte_room data);

    // `data` has 12 bytes.
    outcome rebuild_status(std::uint32_t handle, byte_room data);
    outcome warm_boot(std::uint32_t handle);
    outcome flush(std::uint32_t handle, int port);

private:
    outcome send(std::uint32_t handle, const vendor_command& command, byte_view out, byte_room in);

    transport& way_;
};

} // namespace enclosure
