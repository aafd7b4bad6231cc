#include "device/known_bridges.h"

#include "device/hotplug.h"
#include "util/functions.h"

#include <algorithm>

namespace {

// An entry is its bridge's number and a level: the bus device at the top, the bridge four levels
// below it, the entry with the bridge's own name three below that.
constexpr unsigned level_bits = 3;
constexpr registry_entry level_mask = 7;
constexpr registry_entry bus_device_level = 0;
constexpr registry_entry bridge_level = 4;
constexpr registry_entry name_level = 7;

registry_entry level_of(registry_entry entry) {
    return entry & level_mask;
}

} // namespace

known_bridges::number_type known_bridges::add(const bridge_identity& bridge) {
    const mutex_scope guard(mutex_);
    bridges_.emplace(++last_, bridge);
    return last_;
}

void known_bridges::leave(number_type number) {
    const mutex_scope guard(mutex_);
    if (const auto found = bridges_.find(number); found != bridges_.end()) {
        found->second.node.clear();
    }
}

void known_bridges::forget(number_type number) {
    const mutex_scope guard(mutex_);
    bridges_.erase(number);
}

registry_entry known_bridges::entry_of(std::uint32_t device) const {
    const mutex_scope guard(mutex_);
    const auto latest = std::find_if(bridges_.rbegin(), bridges_.rend(), [device](const auto& one) {
        return one.second.handle == device;
    });
    return latest == bridges_.rend() ? 0 : latest->first << level_bits | bridge_level;
}

std::vector<reached_bridge> known_bridges::with_nodes() const {
    const mutex_scope guard(mutex_);
    std::vector<reached_bridge> found;
    for (const auto& [number, bridge] : bridges_) {
        if (bridge.announced && !bridge.node.empty()) {
            found.push_back({bridge.name, bridge.node, false});
        }
    }
    return found;
}

std::uint32_t known_bridges::handle_of(number_type number) const {
    const mutex_scope guard(mutex_);
    const auto found = bridges_.find(number);
    return found == bridges_.end() ? 0 : found->second.handle;
}

std::optional<bridge_identity> known_bridges::owner_of(registry_entry entry) const {
    const mutex_scope guard(mutex_);
    const auto found = bridges_.find(entry >> level_bits);
    return found == bridges_.end() ? std::nullopt : std::optional(found->second);
}

registry_entry known_bridges::parent(registry_entry entry) const {
    return owner_of(entry) && level_of(entry) > bus_device_level ? entry - 1 : 0;
}

registry_entry known_bridges::first_child(registry_entry entry) const {
    return owner_of(entry) && level_of(entry) < name_level ? entry + 1 : 0;
}

std::string known_bridges::name(registry_entry entry) const {
    const std::optional<bridge_identity> bridge = owner_of(entry);
    if (!bridge) {
        return {};
    }
    switch (level_of(entry)) {
    case bus_device_level:
        return bridge->firewire ? "FireWire Device" : "USB Device";
    case bridge_level:
        return std::string(bridge_class);
    case name_level:
        return bridge->name;
    default:
        return "Node";
    }
}

std::int64_t known_bridges::number(registry_entry entry, std::string_view property) const {
    const std::optional<bridge_identity> bridge = owner_of(entry);
    if (!bridge || level_of(entry) != bus_device_level) {
        return 0;
    }
    if (bridge->firewire) {
        return property == "GUID" ? static_cast<std::int64_t>(bridge->guid) : 0;
    }
    if (property == "idVendor") {
        return bridge->vendor_id;
    }
    if (property == "idProduct") {
        return bridge->product_id;
    }
    return property == "locationID" ? bridge->location_id : 0;
}

std::u16string known_bridges::text(registry_entry entry, std::string_view property) const {
    const std::optional<bridge_identity> bridge = owner_of(entry);
    if (!bridge || bridge->firewire || level_of(entry) != bus_device_level ||
        property != "USB Serial Number") {
        return {};
    }
    return stringtonsstring(bridge->serial);
}
