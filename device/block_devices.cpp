#include "device/block_devices.h"

#include "device/sysfs_attribute.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace {

namespace fs = std::filesystem;

// "sdb2" before "sdb11".
bool by_name(const std::string& one, const std::string& other) {
    return std::pair(one.size(), one) < std::pair(other.size(), other);
}

bool lies_in(const std::string& folder, const std::string& outer) {
    return folder == outer || folder.starts_with(outer + "/");
}

} // namespace

block_devices::block_devices(const std::string& sysfs) {
    const std::string folder = sysfs + "/class/block";
    for (const std::string& name : names_in(folder)) {
        add(name, folder + "/" + name);
    }
}

std::vector<std::string> block_devices::names_in(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code trouble;
    for (fs::directory_iterator entry(folder, trouble), end; !trouble && entry != end;
         entry.increment(trouble)) {
        names.push_back(entry->path().filename().string());
    }
    complete_ = complete_ && !trouble;
    std::sort(names.begin(), names.end(), by_name);
    return names;
}

void block_devices::add(const std::string& name, const std::string& link) {
    std::error_code trouble;
    const std::string folder = fs::canonical(link, trouble).string();
    if (trouble) {
        // One that has gone meanwhile is not missed.
        complete_ = complete_ && trouble == std::errc::no_such_file_or_directory;
        return;
    }
    const std::string mapped = sysfs_attribute(folder + "/dm", "name");
    all_.push_back({folder, name, mapped.empty() ? name : mapped, sysfs_attribute(folder, "dev")});
}

std::vector<block_device> block_devices::below(const std::string& folder) const {
    std::vector<block_device> found;
    std::copy_if(all_.begin(), all_.end(), std::back_inserter(found),
                 [&folder](const block_device& one) { return lies_in(one.folder, folder); });
    return found;
}

std::vector<block_device> block_devices::holders_of(const block_device& held) {
    std::vector<block_device> found;
    for (const std::string& name : names_in(held.folder + "/holders")) {
        const auto holder = std::find_if(all_.begin(), all_.end(),
                                         [&name](const auto& one) { return one.name == name; });
        if (holder != all_.end()) {
            found.push_back(*holder);
        } else {
            complete_ = false; // it has come since, and may be used in turn
        }
    }
    return found;
}
