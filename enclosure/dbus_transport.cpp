#include "enclosure/dbus_transport.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace enclosure {

namespace {

const std::string bus_name = "org.freedesktop.DBus";

bool one_of(const std::string& name, std::initializer_list<std::string_view> names) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

// The connection itself is of no more use.
bool is_broken(const sdbus::Error& error) {
    return one_of(error.getName(),
                  {"org.freedesktop.DBus.Error.Disconnected", "System.Error.ENOTCONN",
                   "System.Error.ECONNRESET", "System.Error.EPIPE", "System.Error.ESTALE"});
}

// Nobody answered in time.
bool is_late(const sdbus::Error& error) {
    return one_of(error.getName(),
                  {"org.freedesktop.DBus.Error.NoReply", "org.freedesktop.DBus.Error.Timeout",
                   "org.freedesktop.DBus.Error.TimedOut", "System.Error.ETIMEDOUT"});
}

// The service or the bridge's object is not there any more.
bool is_gone(const sdbus::Error& error) {
    return is_broken(error) ||
           one_of(error.getName(), {"org.freedesktop.DBus.Error.ServiceUnknown",
                                    "org.freedesktop.DBus.Error.NameHasNoOwner",
                                    "org.freedesktop.DBus.Error.UnknownObject",
                                    "org.freedesktop.DBus.Error.UnknownInterface",
                                    "org.freedesktop.DBus.Error.UnknownProperty",
                                    "org.freedesktop.DBus.Error.UnknownMethod"});
}

// The handle of an object of the service; nothing when it is no bridge.
std::optional<std::uint32_t> handle_in(const sdbus::ObjectPath& path,
                                       const std::map<std::string, bus::options>& interfaces) {
    const auto bridge = interfaces.find(bus::bridge_interface);
    if (bridge == interfaces.end()) {
        return std::nullopt;
    }
    const auto handle = bridge->second.find("Handle");
    if (handle == bridge->second.end() || !handle->second.containsValueOfType<std::uint32_t>()) {
        return std::nullopt;
    }
    const auto value = handle->second.get<std::uint32_t>();
    return path == bus::bridge_path(value) ? std::optional(value) : std::nullopt;
}

} // namespace

// Takes in what nobody reads because it arrived unasked, as answers that came too late do.
// False: the connection is broken.
bool dbus_transport::drain() {
    try {
        while (connection_->processPendingRequest()) {
        }
        return true;
    } catch (const sdbus::Error&) {
        return false;
    }
}

// Another bus gives the same unique names to others, so no handle survives.
void dbus_transport::disconnect() {
    opened_.clear();
    connection_.reset();
}

sdbus::IConnection& dbus_transport::connection() {
    if (connection_ && !drain()) {
        disconnect();
    }
    if (!connection_) {
        connection_ = sdbus::createSessionBusConnection();
        connection_->setMethodCallTimeout(answer_limit);
    }
    return *connection_;
}

std::string dbus_transport::owner() {
    std::string unique_name;
    sdbus::createProxy(connection(), bus_name, "/org/freedesktop/DBus")
        ->callMethod("GetNameOwner")
        .onInterface(bus_name)
        .withArguments(bus::service)
        .storeResultsTo(unique_name);
    return unique_name;
}

std::vector<std::uint32_t> dbus_transport::bridges_of(const std::string& service_owner) {
    bus::managed_objects objects;
    sdbus::createProxy(connection(), service_owner, bus::root)
        ->callMethod("GetManagedObjects")
        .onInterface(bus::object_manager_interface)
        .storeResultsTo(objects);
    std::vector<std::uint32_t> handles;
    for (const auto& [path, interfaces] : objects) {
        if (const auto handle = handle_in(path, interfaces)) {
            handles.push_back(*handle);
        }
    }
    std::sort(handles.begin(), handles.end());
    return handles;
}

// Asks for the one bridge: opening each of n bridges must not list all n every time.
bool dbus_transport::has_bridge(const std::string& service_owner, std::uint32_t handle) {
    const auto told = sdbus::createProxy(connection(), service_owner, bus::bridge_path(handle))
                          ->getProperty("Handle")
                          .onInterface(bus::bridge_interface);
    return told.containsValueOfType<std::uint32_t>() && told.get<std::uint32_t>() == handle;
}

// What became of a request that ended with an error.
delivery dbus_transport::failed(const sdbus::Error& error) {
    if (is_broken(error)) {
        disconnect();
    }
    return is_gone(error) ? delivery::gone : delivery::no_answer;
}

bridge_listing dbus_transport::bridges() {
    try {
        return {bridges_of(owner()), true};
    } catch (const sdbus::Error& error) {
        failed(error);
        return {{}, !is_late(error)};
    }
}

delivery dbus_transport::open(std::uint32_t handle) {
    try {
        std::string service_owner = owner();
        if (!has_bridge(service_owner, handle)) {
            return delivery::gone;
        }
        opened_[handle] = std::move(service_owner);
        return delivery::answered;
    } catch (const sdbus::Error& error) {
        return failed(error);
    }
}

void dbus_transport::close(std::uint32_t handle) {
    opened_.erase(handle);
}

exchange dbus_transport::execute(std::uint32_t handle, byte_view cdb, byte_view data_out,
                                 std::uint32_t allocation) {
    try {
        sdbus::IConnection& way = connection();
        const auto opened = opened_.find(handle);
        if (opened == opened_.end()) {
            return {delivery::gone, {}};
        }
        std::uint8_t status = 0;
        scsi_reply reply;
        sdbus::createProxy(way, opened->second, bus::bridge_path(handle))
            ->callMethod("Execute")
            .onInterface(bus::bridge_interface)
            .withArguments(std::vector<std::uint8_t>(cdb.begin(), cdb.end()), allocation,
                           std::vector<std::uint8_t>(data_out.begin(), data_out.end()))
            .storeResultsTo(status, reply.sense, reply.data_in);
        reply.status = static_cast<scsi_status>(status);
        return {delivery::answered, std::move(reply)};
    } catch (const sdbus::Error& error) {
        return {failed(error), {}};
    }
}

} // namespace enclosure
