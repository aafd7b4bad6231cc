// The way to the bridges of the host service over the session bus.
#pragma once

#include "enclosure/dbus_names.h"
#include "enclosure/transport.h"

#include <map>
#include <memory>
#include <string>

namespace enclosure {

// Has a bus connection of its own, opened when first needed and anew after it broke. It never
// starts the service: no bus and no service are an empty desk.
class dbus_transport final : public transport {
public:
    bridge_listing bridges() override;
    delivery open(std::uint32_t handle) override;
    void close(std::uint32_t handle) override;
    exchange execute(std::uint32_t handle, byte_view cdb, byte_view data_out,
                     std::uint32_t allocation) override;

private:
    // The handles of a service's bridges; throws sdbus::Error.
    std::vector<std::uint32_t> bridges_of(const std::string& owner);

    // Whether the service has a bridge of this handle; throws sdbus::Error.
    bool has_bridge(const std::string& owner, std::uint32_t handle);

    // The service's unique name; throws sdbus::Error when there is no bus or no service.
    std::string owner();
    sdbus::IConnection& connection();
    bool drain();
    void disconnect();
    delivery failed(const sdbus::Error& error);

    std::unique_ptr<sdbus::IConnection> connection_;
    std::map<std::uint32_t, std::string> opened_; // unique name of the service by handle
};

} // namespace enclosure
