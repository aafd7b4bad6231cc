#include "tests/udev/mock_bus.h"

#include <filesystem>
#include <stdexcept>

namespace {

const std::string root_hub = "/sys/devices/pci0000:00/0000:00:14.0/usb2";
const std::string firewire_card = "/sys/devices/pci0000:00/0000:03:00.0";

// One device of the tree, in the notation of umockdev. Lines are added in their order.
class device_text {
public:
    device_text(const std::string& path, const std::string& subsystem) {
        text_ =
            "P: " + path.substr(4) + "\n" + "E: SUBSYSTEM=" + subsystem + "\n"; // without "/sys"
    }
    device_text& property(const std::string& name, const std::string& value) {
        text_ += "E: " + name + "=" + value + "\n";
        return *this;
    }
    device_text& attribute(const std::string& name, const std::string& value) {
        if (!value.empty()) {
            text_ += "A: " + name + "=" + value + "\\n\n";
        }
        return *this;
    }
    std::string text() const { return text_ + "\n"; }

private:
    std::string text_;
};

std::string plain_scsi(const std::string& path, const std::string& type) {
    return device_text(path, "scsi").property("DEVTYPE", type).text();
}

bool is_usb(const std::string& device) {
    return device.starts_with(root_hub);
}

} // namespace

std::string mock_usb_device::path() const {
    return root_hub + "/" + bus + "-" + ports;
}

std::string mock_firewire_device::path() const {
    return firewire_card + "/fw1";
}

// "2-1.4" has the interface "2-1.4:1.0", "fw1" the unit "fw1.0".
std::string mock_bus::interface_path(const std::string& device) {
    const std::string name = device.substr(device.rfind('/') + 1);
    return device + "/" + name + (is_usb(device) ? ":1.0" : ".0");
}

std::string mock_bus::host_path(const std::string& device, const mock_bridge& bridge) {
    return interface_path(device) + "/host" + bridge.host;
}

std::string mock_bus::scsi_path(const std::string& device, const mock_bridge& bridge) {
    return host_path(device, bridge) + "/target" + bridge.host + ":0:0/" + bridge.scsi_device();
}

std::string mock_bus::node_path(const std::string& device, const mock_bridge& bridge) {
    return scsi_path(device, bridge) + "/scsi_generic/sg" + bridge.sg;
}

mock_bus::mock_bus() : testbed_(umockdev_testbed_new()) {
    if (umockdev_in_mock_environment() == FALSE) {
        throw std::runtime_error("run this under umockdev-wrapper");
    }
    add_text(device_text(root_hub, "usb")
                 .property("DEVTYPE", "usb_device")
                 .attribute("idVendor", "1d6b")
                 .attribute("idProduct", "0003")
                 .attribute("busnum", "2")
                 .attribute("devpath", "0")
                 .text());
}

void mock_bus::add_text(const std::string& text) {
    g_autoptr(GError) error = nullptr;
    if (umockdev_testbed_add_from_string(testbed_, text.c_str(), &error) == FALSE) {
        throw std::runtime_error(error->message);
    }
}

void mock_bus::add(const mock_usb_device& device) {
    add_text(device_text(device.path(), "usb")
                 .property("DEVTYPE", "usb_device")
                 .attribute("idVendor", device.vendor)
                 .attribute("idProduct", device.product)
                 .attribute("serial", device.serial)
                 .attribute("busnum", device.bus)
                 .attribute("devpath", device.ports)
                 .text());
    add_interface(device.path());
}

void mock_bus::add(const mock_firewire_device& device) {
    add_text(device_text(device.path(), "firewire")
                 .property("DEVNAME", "/dev/fw1")
                 .attribute("guid", device.guid)
                 .text());
    add_interface(device.path());
}

void mock_bus::add_interface(const std::string& device) {
    device_text interface(interface_path(device), is_usb(device) ? "usb" : "firewire");
    if (is_usb(device)) {
        interface.property("DEVTYPE", "usb_interface");
    }
    add_text(interface.text());
}

void mock_bus::add_scsi_device(const std::string& device, const mock_bridge& bridge) {
    if (bridge.lun == "0") {
        const std::string host = host_path(device, bridge);
        add_text(plain_scsi(host, "scsi_host"));
        add_text(plain_scsi(host + "/target" + bridge.host + ":0:0", "scsi_target"));
    }
    add_text(device_text(scsi_path(device, bridge), "scsi")
                 .property("DEVTYPE", "scsi_device")
                 .attribute("type", bridge.type)
                 .attribute("vendor", bridge.vendor)
                 .attribute("model", bridge.model)
                 .text());
}

void mock_bus::add_node(const std::string& device, const mock_bridge& bridge) {
    device_text node(node_path(device, bridge), "scsi_generic");
    node.property("MAJOR", "21").property("MINOR", bridge.sg);
    node.property("DEVNAME", bridge.file.empty() ? "/dev/sg" + bridge.sg : bridge.file);
    if (bridge.chosen) {
        node.property("KRRAID_BRIDGE", "1"); // udev keeps it in its database, for which this stands
    }
    add_text(node.text());
}

// From the leaf on, as the kernel does: links to what is below a folder would stay.
void mock_bus::take_out(const std::string& device, const mock_bridge& bridge) {
    const std::string scsi = scsi_path(device, bridge);
    for (const std::string& path : {node_path(device, bridge), scsi,
                                    scsi.substr(0, scsi.rfind('/')), host_path(device, bridge)}) {
        umockdev_testbed_remove_device(testbed_, path.c_str());
    }
}

void mock_bus::set_attribute(const std::string& path, const std::string& name,
                             const std::string& text) {
    umockdev_testbed_set_attribute(testbed_, path.c_str(), name.c_str(), text.c_str());
}

void mock_bus::spoil_attribute(const std::string& path, const std::string& name) {
    g_autofree char* root = umockdev_testbed_get_root_dir(testbed_);
    const std::filesystem::path file = root + path + "/" + name;
    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
}

void mock_bus::choose(const std::string& device, const mock_bridge& bridge) {
    umockdev_testbed_set_property(testbed_, node_path(device, bridge).c_str(), "KRRAID_BRIDGE",
                                  "1");
}

void mock_bus::tell(const std::string& action, const std::string& device,
                    const mock_bridge& bridge) {
    umockdev_testbed_uevent(testbed_, node_path(device, bridge).c_str(), action.c_str());
}
