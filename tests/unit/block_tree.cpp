#include "tests/unit/block_tree.h"

#include <fstream>

#include "device/bridge_node.h"
#include "device/sg_handle.h"

namespace {

namespace fs = std::filesystem;

const std::string mountinfo = "proc/self/mountinfo";
const std::string swaps = "proc/swaps";

} // namespace

std::string tree_bridge::scsi_device() const {
    const std::string target = host + ":0:0";
    return carrier + "/1-1:1.0/host" + host + "/target" + target + "/" + target + ":" + lun;
}

block_tree::block_tree() {
    fs::create_directories(root_.path() / "sys/class/block");
    fs::create_directories(root_.path() / "sys/class/scsi_generic");
    write(mountinfo, "22 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n");
    write(swaps, "Filename\t\t\t\tType\t\tSize\t\tUsed\t\tPriority\n");
}

void block_tree::write(const std::string& path, const std::string& text) {
    fs::create_directories((root_.path() / path).parent_path());
    std::ofstream(root_.path() / path, std::ios::binary) << text;
}

void block_tree::append(const std::string& path, const std::string& text) {
    std::ofstream(root_.path() / path, std::ios::binary | std::ios::app) << text;
}

void block_tree::remove(const std::string& path) {
    fs::remove_all(root_.path() / path);
}

std::uint32_t block_tree::add(const tree_bridge& bridge) {
    const fs::path devices = root_.path() / "sys/devices";
    const fs::path scsi_device = devices / bridge.scsi_device();
    const std::string node = "sg" + std::to_string(bridge.sg);
    fs::create_directories(scsi_device / "scsi_generic" / node);
    const fs::path bus = devices / bridge.carrier / "subsystem";
    if (!fs::is_symlink(bus)) {
        fs::create_directory_symlink("/sys/bus/" + bridge.bus, bus);
    }
    fs::create_directory_symlink("../../../" + scsi_device.filename().string(),
                                 scsi_device / "scsi_generic" / node / "device");
    fs::create_directory_symlink(scsi_device / "scsi_generic" / node,
                                 root_.path() / "sys/class/scsi_generic" / node);
    return handle_of(bridge);
}

std::uint32_t block_tree::handle_of(const tree_bridge& bridge) const {
    const std::string node = sysfs() + "/class/scsi_generic/sg" + std::to_string(bridge.sg);
    return sg_handle(static_cast<std::uint32_t>(bridge.sg), sysfs_arrival_number(node));
}

void block_tree::remove_node(const tree_bridge& bridge) {
    const std::string node = "sg" + std::to_string(bridge.sg);
    remove("sys/class/scsi_generic/" + node);
    remove("sys/devices/" + bridge.scsi_device() + "/scsi_generic/" + node);
}

void block_tree::add_disk(const tree_bridge& bridge, const std::string& name,
                          const std::string& number) {
    add_block(bridge.scsi_device() + "/block", name, number);
}

void block_tree::add_block(const std::string& folder, const std::string& name,
                           const std::string& number) {
    const fs::path place = root_.path() / "sys/devices" / folder / name;
    fs::create_directories(place / "holders");
    std::ofstream(place / "dev") << number << "\n";
    fs::create_directory_symlink(place, link_of(name));
}

fs::path block_tree::link_of(const std::string& name) const {
    return root_.path() / "sys/class/block" / name;
}

void block_tree::add_partition(const std::string& disk, const std::string& name,
                               const std::string& number) {
    const fs::path devices = root_.path() / "sys/devices";
    add_block(fs::read_symlink(link_of(disk)).lexically_relative(devices).string(), name, number);
}

void block_tree::add_virtual(const std::string& name, const std::string& number,
                             const std::string& mapped) {
    add_block("virtual/block", name, number);
    if (!mapped.empty()) {
        write("sys/devices/virtual/block/" + name + "/dm/name", mapped + "\n");
    }
}

void block_tree::hold(const std::string& held, const std::string& holder) {
    fs::create_directory_symlink(fs::read_symlink(link_of(holder)),
                                 fs::read_symlink(link_of(held)) / "holders" / holder);
}

void block_tree::mount(const std::string& number, const std::string& place,
                       const std::string& source) {
    append(mountinfo,
           "99 22 " + number + " / " + place + " rw,nosuid shared:7 - ext4 " + source + " rw\n");
}

void block_tree::swap_on(const std::string& file) {
    append(swaps, file + "                               partition\t1048572\t\t0\t\t-2\n");
}
