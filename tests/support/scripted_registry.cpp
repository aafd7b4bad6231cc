#include "tests/support/scripted_registry.h"

#include <utility>

namespace {

// An entry holds the device and, above it, the number of levels from the bus device down (8 is
// the bus device, 12 the bridge, 15 its name), so that both walks end somewhere.
constexpr int level_shift = 32;
constexpr std::uint64_t bus_level = 8;
constexpr std::uint64_t bridge_level = 12;
constexpr std::uint64_t name_level = 15;

constexpr registry_entry entry_at(std::uint32_t device, std::uint64_t level) {
    return (level << level_shift) | device;
}

constexpr std::uint32_t device_of(registry_entry entry) {
    return static_cast<std::uint32_t>(entry);
}

constexpr std::uint64_t level_of(registry_entry entry) {
    return entry >> level_shift;
}

// "0x11 up 4", "0x11 down 3".
std::string place(registry_entry entry) {
    const std::uint64_t level = level_of(entry);
    const std::string steps = level > bridge_level ? " down " + std::to_string(level - bridge_level)
                                                   : " up " + std::to_string(bridge_level - level);
    return hex(device_of(entry)) + steps;
}

} // namespace

registered_bridge usb_bridge(std::int32_t vendor, std::int32_t product, std::int32_t location,
                             const std::u16string& serial) {
    registered_bridge bridge;
    bridge.numbers = {{"idVendor", vendor}, {"idProduct", product}, {"locationID", location}};
    bridge.texts = {{"USB Serial Number", serial}};
    return bridge;
}

registered_bridge firewire_bridge(std::uint64_t guid) {
    registered_bridge bridge;
    bridge.bus_name = "A FireWire Device";
    bridge.numbers = {{"GUID", static_cast<std::int64_t>(guid)}};
    return bridge;
}

void scripted_registry::put(std::uint32_t device, registered_bridge bridge) {
    const mutex_scope lock(mutex_);
    bridges_[device] = std::move(bridge);
}

void scripted_registry::remove(std::uint32_t device) {
    const mutex_scope lock(mutex_);
    bridges_.erase(device);
}

void scripted_registry::reset() {
    const mutex_scope lock(mutex_);
    bridges_.clear();
    reached_.clear();
}

std::optional<registered_bridge> scripted_registry::bridge_of(registry_entry entry) const {
    const mutex_scope lock(mutex_);
    const auto found = bridges_.find(device_of(entry));
    return found == bridges_.end() ? std::nullopt : std::optional(found->second);
}

registry_entry scripted_registry::entry_of(std::uint32_t device) {
    const registry_entry entry = entry_at(device, bridge_level);
    return bridge_of(entry) ? entry : 0;
}

registry_entry scripted_registry::parent(registry_entry entry) {
    return entry == 0 || level_of(entry) == 0 ? 0 : entry_at(device_of(entry), level_of(entry) - 1);
}

registry_entry scripted_registry::first_child(registry_entry entry) {
    return entry == 0 || level_of(entry) >= name_level
               ? 0
               : entry_at(device_of(entry), level_of(entry) + 1);
}

std::string scripted_registry::name(registry_entry entry) {
    log_.add(from_registry, "name(" + place(entry) + ")");
    const std::optional<registered_bridge> bridge = bridge_of(entry);
    if (!bridge) {
        return {};
    }
    if (level_of(entry) == bus_level) {
        return bridge->bus_name;
    }
    return level_of(entry) == name_level ? bridge->name : "node";
}

std::int64_t scripted_registry::number(registry_entry entry, std::string_view property) {
    log_.add(from_registry, "number(" + place(entry) + ", " + std::string(property) + ")");
    const std::optional<registered_bridge> bridge = bridge_of(entry);
    if (!bridge || level_of(entry) != bus_level) {
        return 0;
    }
    const auto found = bridge->numbers.find(property);
    return found == bridge->numbers.end() ? 0 : found->second;
}

std::u16string scripted_registry::text(registry_entry entry, std::string_view property) {
    log_.add(from_registry, "text(" + place(entry) + ", " + std::string(property) + ")");
    const std::optional<registered_bridge> bridge = bridge_of(entry);
    if (!bridge || level_of(entry) != bus_level) {
        return {};
    }
    const auto found = bridge->texts.find(property);
    return found == bridge->texts.end() ? std::u16string() : found->second;
}

std::vector<reached_bridge> scripted_registry::reached() {
    const mutex_scope lock(mutex_);
    return reached_;
}

void scripted_registry::set_reached(std::vector<reached_bridge> bridges) {
    const mutex_scope lock(mutex_);
    reached_ = std::move(bridges);
}
