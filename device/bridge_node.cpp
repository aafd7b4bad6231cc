#include "device/bridge_node.h"

#include "device/bus_numbers.h"
#include "device/sg_handle.h"
#include "device/sysfs_attribute.h"
#include "util/functions.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <limits>
#include <string_view>

namespace {

constexpr std::size_t inquiry_vendor_size = 8;
constexpr std::size_t longest_name = 127;
constexpr std::uint64_t highest_usb_id = 0xFFFF;
constexpr std::uint64_t highest_guid = std::numeric_limits<std::uint64_t>::max();

std::string_view view(const char* text) {
    return text == nullptr ? std::string_view() : std::string_view(text);
}

std::string folder_of(udev_device* device) {
    return std::string(view(udev_device_get_syspath(device)));
}

bool is_of(udev_device* device, std::string_view subsystem) {
    return device != nullptr && view(udev_device_get_subsystem(device)) == subsystem;
}

bool has_type(udev_device* device, std::string_view type) {
    return view(udev_device_get_devtype(device)) == type;
}

// The SCSI device that a chosen node stands for; none when it is not of type 0.
udev_device* scsi_device_of(udev_device* node) {
    const bool chosen = is_of(node, node_subsystem) &&
                        view(udev_device_get_property_value(node, "KRRAID_BRIDGE")) == "1";
    udev_device* device = chosen ? udev_device_get_parent(node) : nullptr;
    const bool fits = is_of(device, "scsi") && has_type(device, "scsi_device") &&
                      sysfs_attribute(folder_of(device), "type") == "0";
    return fits ? device : nullptr;
}

udev_device* bus_device_of(udev_device* device) {
    for (int level = 0; level < levels_to_bus_device && device != nullptr; ++level) {
        device = udev_device_get_parent(device);
    }
    return device;
}

// INQUIRY's vendor and product are often one text cut in two.
std::string name_of(const std::string& scsi_device) {
    std::string name = sysfs_attribute(scsi_device, "vendor");
    if (name.size() < inquiry_vendor_size) {
        name.resize(inquiry_vendor_size, ' ');
    }
    name += sysfs_attribute(scsi_device, "model");
    trim(name);
    return name.size() <= longest_name ? name : std::string();
}

bridge_identity usb_identity(const std::string& device) {
    const auto id = [&device](const char* name) {
        return static_cast<std::uint32_t>(
            hex_number(sysfs_attribute(device, name), highest_usb_id));
    };
    bridge_identity identity;
    identity.vendor_id = id("idVendor");
    identity.product_id = id("idProduct");
    identity.location_id =
        location_number(sysfs_attribute(device, "busnum"), sysfs_attribute(device, "devpath"));
    identity.serial = sysfs_attribute(device, "serial");
    return identity;
}

bridge_identity firewire_identity(const std::string& device) {
    bridge_identity identity;
    identity.firewire = true;
    identity.guid = hex_number(sysfs_attribute(device, "guid"), highest_guid);
    return identity;
}

// Nothing when it is neither a USB nor a FireWire device, but a unit of one or a hub, or of
// another bus.
std::optional<bridge_identity> identity_on_bus(udev_device* device) {
    if (is_of(device, "usb") && has_type(device, "usb_device")) {
        return usb_identity(folder_of(device));
    }
    // Devices have a node, their units have none.
    if (is_of(device, "firewire") && udev_device_get_devnode(device) != nullptr) {
        return firewire_identity(folder_of(device));
    }
    return std::nullopt;
}

} // namespace

std::uint64_t sysfs_arrival_number(const std::string& path) {
    struct stat found {};
    return ::stat(path.c_str(), &found) == 0 ? found.st_ino : 0;
}

std::optional<bridge_node> bridge_node_of(udev_device* node, const arrival_number& arrival) {
    const dev_t number = udev_device_get_devnum(node);
    udev_device* const scsi_device = scsi_device_of(node);
    udev_device* const bus_device = bus_device_of(scsi_device);
    const std::optional<bridge_identity> identity = identity_on_bus(bus_device);
    if (!identity || major(number) != sg_major || minor(number) > sg_most_minor) {
        return std::nullopt;
    }
    bridge_node found{folder_of(node), folder_of(bus_device), *identity};
    found.identity.handle = sg_handle(minor(number), arrival(found.path));
    found.identity.name = name_of(folder_of(scsi_device));
    found.identity.node = view(udev_device_get_devnode(node));
    return found;
}
