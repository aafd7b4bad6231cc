// A SCSI generic node that leads to a bridge.
#pragma once

#include "device/known_bridges.h"

#include <libudev.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

// The subsystem of such nodes.
inline constexpr const char* node_subsystem = "scsi_generic";

// From the SCSI device up: its target, its host, the interface or unit, the device on the bus.
inline constexpr int levels_to_bus_device = 4;

struct bridge_node {
    std::string path;       // its folder in sysfs
    std::string bus_device; // that of the USB or FireWire device that carries it
    bridge_identity identity;
};

// Tells the arrivals of nodes with the same name apart by their folder in sysfs.
using arrival_number = std::function<std::uint64_t(const std::string& path)>;

// The kernel numbers what it adds to sysfs in ascending order; the access library sees the same
// number. 0 when the folder has gone.
std::uint64_t sysfs_arrival_number(const std::string& path);

// What the node says while it is there: nothing when the udev rule has not chosen it, or when it
// does not lead to a SCSI device of type 0 four levels below a USB or FireWire device. What is
// missing or malformed beyond that is 0 or empty. One thread at a time for a udev_device.
std::optional<bridge_node> bridge_node_of(udev_device* node, const arrival_number& arrival);
