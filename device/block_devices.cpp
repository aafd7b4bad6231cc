#include "device/block_devices.h"

#include "device/sysfs_attribute.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <utility>

namespace {

namespace fs = std::filesystem;

// "sdb2" before "sdb11".
bool by_name(const fs::path& one, const fs::path& other) {
    const std::string name = one.filename().string();
    const std::string other_name = other.filename().string();
    return std::pair(name.size(), name) < std::pair(other_name.size(), other_name);
}

bool lies_in(const std::string& folder, const std::string& outer) {
    return folder == outer || folder.starts_with(outer + "/");
}

} // namespace

bool is_node_of(const std::string& path, const block_device& device) {
    const bool mapped = device.shown != device.name;
    return path == "/dev/" + device.name || (mapped && path == "/dev/mapper/" + device.shown);
}

block_devices::block_devices(std::string sysfs) : sysfs_(std::move(sysfs)) {
    for (const fs::path& link : entries_of(sysfs_ + "/class/block")) {
        add(link);
    }
}

std::vector<fs::path> block_devices::entries_of(const fs::path& folder) {
    std::vector<fs::path> entries;
    std::error_code trouble;
    for (fs::directory_iterator entry(folder, trouble), end; !trouble && entry != end;
         entry.increment(trouble)) {
        entries.push_back(entry->path());
    }
    complete_ = complete_ && !trouble;
    std::sort(entries.begin(), entries.end(), by_name);
    return entries;
}

bool block_devices::exists(const fs::path& path) {
    std::error_code trouble;
    const bool found = fs::exists(path, trouble);
    complete_ = complete_ && !trouble;
    return found;
}

std::string block_devices::attribute(const std::string& folder, const char* name) {
    sysfs_reading reading = read_sysfs_attribute(folder, name);
    complete_ = complete_ && !reading.failed;
    return std::move(reading.text);
}

void block_devices::add(const fs::path& link) {
    std::error_code trouble;
    const std::string folder = fs::canonical(link, trouble).string();
    if (trouble) {
        // One that has gone meanwhile is not missed.
        complete_ = complete_ && trouble == std::errc::no_such_file_or_directory;
        return;
    }
    const std::string name = link.filename().string();
    const std::string mapped = attribute(folder + "/dm", "name");
    all_.push_back({folder, name, mapped.empty() ? name : mapped, attribute(folder, "dev")});
}

std::vector<block_device> block_devices::below(const std::string& folder) const {
    std::vector<block_device> found;
    std::copy_if(all_.begin(), all_.end(), std::back_inserter(found),
                 [&folder](const block_device& one) { return lies_in(one.folder, folder); });
    return found;
}

std::vector<block_device>::const_iterator block_devices::find(const fs::path& link) const {
    const std::string name = link.filename().string();
    return std::find_if(all_.begin(), all_.end(),
                        [&name](const block_device& one) { return one.name == name; });
}

std::vector<block_device> block_devices::holders_of(const block_device& held) {
    std::vector<block_device> found;
    for (const fs::path& link : entries_of(held.folder + "/holders")) {
        const auto holder = find(link);
        if (holder != all_.end()) {
            found.push_back(*holder);
        } else {
            complete_ = false; // it has come since, and may be used in turn
        }
    }
    std::copy_if(all_.begin(), all_.end(), std::back_inserter(found),
                 [this, &held](const block_device& one) {
                     return is_node_of(attribute(one.folder + "/loop", "backing_file"), held);
                 });
    return found;
}

std::vector<std::string> block_devices::file_systems_on(const block_device& device) {
    std::vector<std::string> found;
    for (const char* kind : {"ext4", "f2fs", "xfs"}) {
        if (exists(fs::path(sysfs_) / "fs" / kind / device.name)) {
            found.emplace_back(kind);
        }
    }
    if (is_in_btrfs(device)) {
        found.emplace_back("btrfs");
    }
    return found;
}

bool block_devices::is_in_btrfs(const block_device& device) {
    const fs::path file_systems = sysfs_ + "/fs/btrfs";
    if (!exists(file_systems)) {
        return false;
    }
    const std::vector<fs::path> all = entries_of(file_systems);
    return std::any_of(all.begin(), all.end(), [&](const fs::path& file_system) {
        return exists(file_system / "devices" / device.name);
    });
}

std::vector<block_device> block_devices::pool_of(const block_device& member) {
    std::vector<block_device> pool = {member};
    const std::string file_systems = sysfs_ + "/fs/btrfs";
    if (!exists(file_systems)) {
        return pool;
    }
    for (const fs::path& file_system : entries_of(file_systems)) {
        const fs::path members = file_system / "devices";
        if (!exists(members / member.name)) {
            continue;
        }
        for (const fs::path& link : entries_of(members)) {
            if (const auto other = find(link); other != all_.end()) {
                pool.push_back(*other);
            }
        }
    }
    return pool;
}
