// What is known of the bridges, as entries of the registry.
#pragma once

#include "device/registry.h"
#include "util/mutex.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A bridge as it described itself on arrival.
struct bridge_identity {
    std::uint32_t handle = 0;
    bool firewire = false;
    std::uint32_t vendor_id = 0;
    std::uint32_t product_id = 0;
    std::int32_t location_id = 0;
    std::string serial;
    std::uint64_t guid = 0;
    std::string name;
    std::string node;      // of the system, through which it is reached; may be empty
    bool announced = true; // false: another way to a bridge that has been announced already
};

// Every arrival gets a number of its own, even if a handle comes twice. Each bridge has eight
// entries, from its bus device down to its name. Any thread.
class known_bridges {
public:
    using number_type = std::uint64_t;

    // Takes in a bridge and gives its number.
    number_type add(const bridge_identity& bridge);

    // The bridge is not reached any more; what it was called by stays known until forget().
    void leave(number_type number);
    void forget(number_type number);

    // The latest bridge with the handle; 0 when there is none.
    registry_entry entry_of(std::uint32_t device) const;
    bool knows(std::uint32_t device) const { return entry_of(device) != 0; }

    // Those that were announced, are reached through a node and have not left. Name and node only.
    std::vector<reached_bridge> with_nodes() const;

    // The number's handle; 0 when it is unknown.
    std::uint32_t handle_of(number_type number) const;

    registry_entry parent(registry_entry entry) const;
    registry_entry first_child(registry_entry entry) const;
    std::string name(registry_entry entry) const;
    std::int64_t number(registry_entry entry, std::string_view property) const;
    std::u16string text(registry_entry entry, std::string_view property) const;

private:
    std::optional<bridge_identity> owner_of(registry_entry entry) const;

    mutable plain_mutex mutex_;
    std::map<number_type, bridge_identity> bridges_ GUARDED_BY(mutex_);
    number_type last_ GUARDED_BY(mutex_) = 0;
};
