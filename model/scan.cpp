// The scan: from the library's device list to chips with open connections.
#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

#include "device/access_library.h"
#include "device/registry.h"
#include "model/krtool.h"
#include "model/monitors.h"
#include "model/window.h"
#include "util/functions.h"

namespace {

constexpr int levels_to_bus_device = 4;

using device_list = std::vector<std::uint32_t>;

bool read_device_list(access_library& library, device_list& devices) {
    std::array<unsigned char, access_library::list_size> list{};
    std::int32_t count = 0;
    if (library.getDeviceList(list.data(), &count) != 0) {
        return false;
    }
    count = std::clamp(count, 0, access_library::list_most);
    const unsigned char* entry = list.data();
    for (std::int32_t i = 0; i < count; ++i, entry += access_library::list_entry) {
        std::uint32_t device = 0;
        std::memcpy(&device, entry, sizeof device);
        devices.push_back(device);
    }
    return true;
}

// The fields of the bridge's own bus alone are set; the others keep what they hold.
void read_identity(device_registry& registry, std::uint32_t device, controller_t& identity) {
    registry_entry entry = registry.entry_of(device);
    for (int level = 0; level < levels_to_bus_device; ++level) {
        entry = registry.parent(entry);
    }
    identity.firewire = registry.name(entry).find("FireWire") != std::string::npos;
    if (identity.firewire) {
        identity.guid = static_cast<std::uint64_t>(registry.number(entry, "GUID"));
        identity.id = identity.guid;
        identity.serial.clear();
        return;
    }
    const auto number32 = [&](const char* property) {
        return static_cast<std::int32_t>(registry.number(entry, property));
    };
    identity.vendor_id = static_cast<std::uint32_t>(number32("idVendor"));
    identity.product_id = static_cast<std::uint32_t>(number32("idProduct"));
    // Signed on purpose: a location with its top bit set sorts behind every other key.
    identity.location_id =
        static_cast<std::uint64_t>(static_cast<std::int64_t>(number32("locationID")));
    identity.serial = cfstringtostring(registry.text(entry, "USB Serial Number"));
    identity.id = identity.location_id;
}

} // namespace

bool krtool::scandevices() {
    flush_chips();
    device_list devices;
    if (!read_device_list(with.library, devices)) {
        return false;
    }
    {
        const lock_scope lock(records);
        chips.reserve(devices.size());
    }
    controller_t identity;
    for (const std::uint32_t device : devices) {
        read_identity(with.registry, device, identity);
        if (!controller_exists(identity)) {
            add_controller(identity, device);
        }
    }
    setup_controller_map();
    for (krchip& chip : chips) {
        const std::int32_t status = with.library.openConnection(chip.device);
        {
            const lock_scope lock(records);
            chip.connection_open = 1;
        }
        if (status != 0) {
            ctrller->show_error_and_exit(with.texts.text("error_open_device"));
        }
    }
    return true;
}

bool krtool::flush_chips() {
    constexpr int looks = 50;
    for (const krchip& visited : chips) {
        // The monitors of the selected chip, once for every chip of the list.
        if (krchip* chip = selected(); chip != nullptr) {
            chip->stop_raid1_timer();
            chip->await_raid1_timer();
            chip->stop_polling();
            for (int look = 0; look < looks && chip->poller_alive; ++look) {
            }
        }
        if (visited.connection_open != 0) {
            with.library.closeConnection(visited.device);
        }
    }
    const lock_scope lock(records);
    chips.clear();
    ++generation_;
    return true;
}
