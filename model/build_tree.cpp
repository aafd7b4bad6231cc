#include <algorithm>

#include "model/krtool.h"
#include "model/window.h"
#include "util/functions.h"
#include "util/print.h"

namespace {

std::string array_label(const krchip& chip) {
    const std::string name = chip.get_raid_name();
    if (chip.identity.firewire) {
        const auto guid = static_cast<std::int64_t>(chip.identity.guid);
        return name + "(GUID: " + inttohexstring(guid, 0) + ")";
    }
    return name + " (SN: " + chip.identity.serial + ")";
}

// One chip's branch. Whether it has an array is looked at once, so that no leaf goes to a branch
// that is not there.
void add_chip(krtool& tool, std::int32_t position, const krchip& chip) {
    const bool array = chip.raid_valid != 0;
    const std::string label = array ? array_label(chip) : std::string();
    const bool two_single_disks =
        !array && chip.disks[0].present != 0 && chip.disks[1].present != 0;
    const lock_scope lock(tool.records);
    tool.tree->addchipFirewire(chip.identity.firewire);
    if (array) {
        tool.tree->addraid(position, label);
    }
    for (const bool port1 : {false, true}) {
        const krdisk& disk = chip.disks[port1 ? 1 : 0];
        if (disk.present != 0) {
            tool.tree->adddisk(position, disk.get_display_string(port1, array, two_single_disks),
                               array);
        }
    }
}

} // namespace

bool krtool::build_tree() {
    {
        const lock_scope lock(records);
        tree->cleartree();
    }
    // A scan that gave up leaves an old map behind: both sizes bound the look-up.
    const std::size_t count = std::min(chips.size(), controller_map.size());
    for (std::size_t position = 0; position < count; ++position) {
        const auto index = static_cast<std::size_t>(controller_map[position].second);
        if (index < chips.size()) {
            add_chip(*this, static_cast<std::int32_t>(position), chips[index]);
        }
    }
    print_out("tree built");
    ctrller->refreshtree();
    ctrller->expandtree();
    return true;
}
