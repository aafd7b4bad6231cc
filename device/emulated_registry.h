// Registry and hot-plug events of the emulated enclosures, taken from the session bus.
#pragma once

#include "device/hotplug.h"
#include "device/registry.h"

#include <memory>

// Follows the enclosure service, which it never starts: bridges arrive when the service appears
// and depart when it ends. The hotplug_source operations belong to the notification thread, the
// device_registry ones and stop() to any thread. A question about a device of which the
// notification thread has not heard yet, since it is busy, first takes in what the bus has sent.
class emulated_registry final : public device_registry, public hotplug_source {
public:
    emulated_registry();
    ~emulated_registry() override;
    emulated_registry(const emulated_registry&) = delete;
    emulated_registry& operator=(const emulated_registry&) = delete;

    registry_entry entry_of(std::uint32_t device) override;
    registry_entry parent(registry_entry entry) override;
    registry_entry first_child(registry_entry entry) override;
    std::string name(registry_entry entry) override;
    std::int64_t number(registry_entry entry, std::string_view property) override;
    std::u16string text(registry_entry entry, std::string_view property) override;

    bool match(std::string_view registry_class) override;
    std::uint32_t add_matching_notification(arrival_handler handler) override;
    std::uint32_t next(std::uint32_t iterator) override;
    std::int32_t add_interest_notification(std::uint32_t service,
                                           departure_handler handler) override;

    // Returns when the session bus has gone, having said so on standard error, or after stop().
    void run() override;

    // Ends run(), now or when it is entered.
    void stop();

private:
    class implementation;
    std::unique_ptr<implementation> inner_;
};
