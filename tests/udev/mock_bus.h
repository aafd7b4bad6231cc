// A device tree of the test's own in place of the kernel's, and udev's events about it.
#pragma once

#include <umockdev.h>

#include <string>

// One SCSI generic node with all that it hangs below. What is changed here is so in the tree; an
// attribute that is left empty is missing from it.
struct mock_bridge {
    std::string host = "6";
    std::string lun = "0";
    std::string sg = "0"; // the node's minor number
    std::string type = "0";
    std::string vendor = "KESTREL ";
    std::string model = "Duo             ";
    bool chosen = true;    // by the udev rule
    std::string file = {}; // of the node, if it is not that of the number

    std::string scsi_device() const { return host + ":0:0:" + lun; }
};

struct mock_usb_device {
    std::string bus = "2";
    std::string ports = "1.4";
    std::string vendor = "1209";
    std::string product = "4b52";
    std::string serial = "KR-0042";

    std::string path() const;
};

struct mock_firewire_device {
    std::string guid = "0xf122334455667788";

    std::string path() const;
};

// With a USB root hub and nothing else to begin with. While it lives, the process sees this tree
// and no other; it has to run under umockdev-wrapper.
class mock_bus {
public:
    mock_bus();
    ~mock_bus() { g_object_unref(testbed_); }
    mock_bus(const mock_bus&) = delete;
    mock_bus& operator=(const mock_bus&) = delete;

    void add(const mock_usb_device& device);
    void add(const mock_firewire_device& device);

    // Below the device of that path: a USB interface or FireWire unit, which a device has already.
    void add_interface(const std::string& device);

    // Below the device of that path: the SCSI device, and its generic node.
    void add_scsi_device(const std::string& device, const mock_bridge& bridge);
    void add_node(const std::string& device, const mock_bridge& bridge);

    // Takes out the SCSI host with all that is below it.
    void take_out(const std::string& device, const mock_bridge& bridge);

    void set_attribute(const std::string& path, const std::string& name, const std::string& text);

    // Puts something in the attribute's place that cannot be read.
    void spoil_attribute(const std::string& path, const std::string& name);

    // The udev rule chooses the node after all.
    void choose(const std::string& device, const mock_bridge& bridge);

    // udev tells of the bridge's node: "add", "change", "remove".
    void tell(const std::string& action, const std::string& device, const mock_bridge& bridge);

    // Folders on the way from the bus device to the node.
    static std::string interface_path(const std::string& device);
    static std::string host_path(const std::string& device, const mock_bridge& bridge);
    static std::string scsi_path(const std::string& device, const mock_bridge& bridge);
    static std::string node_path(const std::string& device, const mock_bridge& bridge);

private:
    void add_text(const std::string& text);

    UMockdevTestbed* testbed_;
};
