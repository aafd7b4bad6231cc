#include "tests/storm/surroundings.h"

#include "model/krtool.h"
#include "model/monitors.h"
#include "model/rescan.h"

// With the gate held, as in a rescan.
void storm_window::select_first_controller() {
    if (j.controller_map.empty()) {
        return;
    }
    const auto first = static_cast<std::size_t>(j.controller_map.front().second);
    {
        const lock_scope lock(j.records);
        j.current = j.chips.at(first).identity;
    }
    j.selected()->select_chip();
    update_raid_information();
}

// The display starts the poller of a chip that wants one.
void storm_window::update_raid_information() {
    const std::optional<chip_snapshot> copy = j.current_chip();
    if (copy && copy->chip.polling) {
        start_wanted_poller(copy->place);
    }
}

void storm_window::refresh() {
    DeviceAdded(nullptr, 0);
}
