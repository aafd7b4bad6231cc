// A device registry with a small tree for each bridge.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "device/registry.h"
#include "tests/support/call_log.h"
#include "util/mutex.h"
#include "util/thread_annotations.h"

// What the registry says about one bridge. A property that is not given is missing.
struct registered_bridge {
    std::string bus_name = "USB Device"; // of the bus device; "FireWire" in it means just that
    std::string name = "Bridge";         // the bridge's own, three levels down
    std::map<std::string, std::int64_t, std::less<>> numbers;
    std::map<std::string, std::u16string, std::less<>> texts;
};

registered_bridge usb_bridge(std::int32_t vendor, std::int32_t product, std::int32_t location,
                             const std::u16string& serial = u"");
registered_bridge firewire_bridge(std::uint64_t guid);

// Writes down what is asked about an entry, "number(0x11 level 4, locationID)". Any thread.
class scripted_registry final : public device_registry {
public:
    explicit scripted_registry(call_log& log) : log_(log) {}

    void put(std::uint32_t device, registered_bridge bridge);
    void remove(std::uint32_t device);
    void reset();

    registry_entry entry_of(std::uint32_t device) override;
    registry_entry parent(registry_entry entry) override;
    registry_entry first_child(registry_entry entry) override;
    std::string name(registry_entry entry) override;
    std::int64_t number(registry_entry entry, std::string_view property) override;
    std::u16string text(registry_entry entry, std::string_view property) override;
    std::vector<reached_bridge> reached() override;

    void set_reached(std::vector<reached_bridge> bridges);

private:
    // The bridge that the entry belongs to.
    std::optional<registered_bridge> bridge_of(registry_entry entry) const;

    call_log& log_;
    mutable plain_mutex mutex_;
    std::map<std::uint32_t, registered_bridge> bridges_ GUARDED_BY(mutex_);
    std::vector<reached_bridge> reached_ GUARDED_BY(mutex_);
};
