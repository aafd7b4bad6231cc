// Registry and hot-plug events of the bridges that sources tell of.
#pragma once

#include "device/bridge_source.h"
#include "device/hotplug.h"
#include "device/registry.h"

#include <memory>
#include <vector>

// Serves its sources in one poll loop. The hotplug_source operations belong to the notification
// thread, the device_registry ones and stop() to any thread. A question about a device of which the
// notification thread has not heard yet, since it is busy, first takes in what has happened.
class source_registry : public device_registry, public hotplug_source {
public:
    using sources = std::vector<std::unique_ptr<bridge_source>>;

    explicit source_registry(std::unique_ptr<bridge_source> source);
    explicit source_registry(sources all);
    ~source_registry() override;
    source_registry(const source_registry&) = delete;
    source_registry& operator=(const source_registry&) = delete;

    registry_entry entry_of(std::uint32_t device) override;
    registry_entry parent(registry_entry entry) override;
    registry_entry first_child(registry_entry entry) override;
    std::string name(registry_entry entry) override;
    std::int64_t number(registry_entry entry, std::string_view property) override;
    std::u16string text(registry_entry entry, std::string_view property) override;
    std::vector<reached_bridge> reached() override;

    // A source that has nothing to listen to is left out; false when that is every one.
    bool match(std::string_view registry_class) override;
    std::uint32_t add_matching_notification(arrival_handler handler) override;
    std::uint32_t next(std::uint32_t iterator) override;
    std::int32_t add_interest_notification(std::uint32_t service,
                                           departure_handler handler) override;

    // Returns when every source has gone, or after stop().
    void run() override;

    // Ends run(), now or when it is entered.
    void stop();

private:
    class implementation;
    std::unique_ptr<implementation> inner_;
};
