// Folders that stand in for sysfs and proc.
#pragma once

#include <cstdint>
#include <string>

#include "tests/enclosure/temporary_folder.h"

// One logical unit of a bridge, with its generic node.
struct tree_bridge {
    std::string carrier = "usb1/1-1"; // below sysfs's devices
    std::string bus = "usb";
    std::string host = "6";
    std::string lun = "0";
    int sg = 0;

    std::string scsi_device() const;
};

// Without any device to begin with, but with both tables; numbers are as "8:16".
class block_tree {
public:
    block_tree();

    std::string sysfs() const { return (root_.path() / "sys").string(); }
    std::string proc() const { return (root_.path() / "proc").string(); }

    // Returns the handle of the node.
    std::uint32_t add(const tree_bridge& bridge);
    // The handle that the node has now.
    std::uint32_t handle_of(const tree_bridge& bridge) const;

    void add_disk(const tree_bridge& bridge, const std::string& name, const std::string& number);
    // A disk of another place below sysfs's devices.
    void add_block(const std::string& folder, const std::string& name, const std::string& number);
    // Of a disk that is there.
    void add_partition(const std::string& disk, const std::string& name, const std::string& number);
    // A mapped or multiple device; `mapped`: its name for people, if it has one.
    void add_virtual(const std::string& name, const std::string& number,
                     const std::string& mapped = {});
    void hold(const std::string& held, const std::string& holder);

    void remove_node(const tree_bridge& bridge);
    void remove(const std::string& path);                         // from the root of both
    void write(const std::string& path, const std::string& text); // the same

    // Adds a line to the table, with these fields in the kernel's notation.
    void mount(const std::string& number, const std::string& place, const std::string& source);
    void swap_on(const std::string& file);

private:
    std::filesystem::path link_of(const std::string& name) const;
    void append(const std::string& path, const std::string& text);

    temporary_folder root_;
};
