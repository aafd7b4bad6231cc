// The block devices of sysfs, and how they lie on each other.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

struct block_device {
    std::string folder; // in sysfs, without links on the way
    std::string name;   // the kernel's, as "sdb1" or "dm-0"
    std::string shown;  // as people know it: that of /dev/mapper where there is one
    std::string number; // "8:17"
};

// Whether a path in /dev is that of the device. Any thread.
bool is_node_of(const std::string& path, const block_device& device);

// A look at all block devices at the time it is made. One thread at a time. What cannot be read is
// missing, and noted.
class block_devices {
public:
    explicit block_devices(std::string sysfs);

    // Disks and partitions whose folder is `folder` or lies below it, by name.
    std::vector<block_device> below(const std::string& folder) const;
    // The devices that other drivers have put on this one, by name, and then those that show it as
    // a file of their own (loop devices).
    std::vector<block_device> holders_of(const block_device& held);

    // The kinds of file systems that have it open, mounted somewhere: also where no table of mounts
    // of ours tells of them. Those that say so in sysfs only.
    std::vector<std::string> file_systems_on(const block_device& device);

    // The device itself, and those that a mounted btrfs lies on together with it: the table of
    // mounts names only one of them.
    std::vector<block_device> pool_of(const block_device& member);

    // False once anything could not be read.
    bool complete() const { return complete_; }

private:
    std::vector<std::filesystem::path> entries_of(const std::filesystem::path& folder); // by name
    bool exists(const std::filesystem::path& path);
    std::string attribute(const std::string& folder, const char* name);
    bool is_in_btrfs(const block_device& device);
    void add(const std::filesystem::path& link);
    std::vector<block_device>::const_iterator find(const std::filesystem::path& link) const;

    const std::string sysfs_;
    std::vector<block_device> all_; // by name
    bool complete_ = true;
};
