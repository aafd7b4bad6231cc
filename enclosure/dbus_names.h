// Names of the host service on the session bus.
#pragma once

#include "enclosure/names.h"

#include <sdbus-c++/sdbus-c++.h>

#include <cstdint>
#include <map>
#include <string>

namespace enclosure::bus {

inline const std::string service = "org.kestrelraid.Enclosure1";
inline const std::string root = "/org/kestrelraid/Enclosure1";

inline const std::string manager_interface = "org.kestrelraid.Enclosure1.Manager";
inline const std::string enclosure_interface = "org.kestrelraid.Enclosure1.Enclosure";
inline const std::string bridge_interface = "org.kestrelraid.Enclosure1.Bridge";
inline const std::string object_manager_interface = "org.freedesktop.DBus.ObjectManager";

// A request that cannot be done: its message is one line for a person.
inline const std::string error_name = "org.kestrelraid.Enclosure1.Error.Failed";

inline std::string enclosure_path(const std::string& name) {
    return root + "/enclosure/" + path_element(name);
}

inline std::string bridge_path(std::uint32_t handle) {
    return root + "/bridge/" + std::to_string(handle);
}

using options = std::map<std::string, sdbus::Variant>;

// What GetManagedObjects answers: properties by interface, by object.
using managed_objects = std::map<sdbus::ObjectPath, std::map<std::string, options>>;

} // namespace enclosure::bus
