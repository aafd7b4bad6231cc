#include "device/sysfs_volume_uses.h"

#include "device/block_devices.h"
#include "device/bridge_node.h"
#include "device/mount_table.h"
#include "device/sg_handle.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>
#include <utility>

namespace {

namespace fs = std::filesystem;

// The folder of the USB or FireWire device that carries the SCSI device; that one's own when it
// does not hang there.
fs::path carrier_of(const fs::path& scsi_device) {
    fs::path device = scsi_device;
    for (int level = 0; level < levels_to_bus_device; ++level) {
        device = device.parent_path();
    }
    std::error_code ignored;
    const fs::path bus = fs::read_symlink(device / "subsystem", ignored).filename();
    return bus == "usb" || bus == "firewire" ? device : scsi_device;
}

// Nothing when it cannot be read to its end.
std::optional<std::string> text_of(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::string text;
    std::getline(file, text, '\0'); // of which there are none
    return file.is_open() && !file.bad() ? std::optional(text) : std::nullopt;
}

// Of a file system with a number of its own, the source tells what it lies on.
bool is_mount_of(const mount_entry& mount, const block_device& device,
                 const std::vector<block_device>& pool) {
    if (!mount.number.starts_with("0:")) {
        return mount.number == device.number;
    }
    return std::any_of(pool.begin(), pool.end(), [&mount](const block_device& member) {
        return is_node_of(mount.source, member);
    });
}

// One look at what the volumes of a bridge are used for.
class volume_look {
public:
    explicit volume_look(const std::string& sysfs) : devices_(sysfs) {}

    // `node`: the bridge's folder in the class of generic nodes; `proc`: where proc is.
    std::vector<volume_use> at(const std::string& node, const std::string& proc);

private:
    void take_volumes(const std::string& node);
    void take(const block_device& device);
    void take_holders();
    std::string table(const std::string& path);
    void find_mounts(const std::string& mountinfo);
    void find_hidden_mounts();
    void find_swaps(const std::string& swaps);
    void add(volume_use use);

    block_devices devices_;
    std::vector<block_device> taken_; // the volumes, and all that lies on them
    std::vector<volume_use> held_;
    std::vector<volume_use> uses_;
    bool complete_ = true;
};

std::vector<volume_use> volume_look::at(const std::string& node, const std::string& proc) {
    take_volumes(node);
    take_holders();
    find_mounts(table(proc + "/self/mountinfo"));
    find_hidden_mounts();
    // A kernel without swap has no table of it.
    const std::string swaps = proc + "/swaps";
    std::error_code trouble;
    if (fs::exists(swaps, trouble) || trouble) {
        find_swaps(table(swaps));
    }
    uses_.insert(uses_.end(), held_.begin(), held_.end());
    if (!complete_ || !devices_.complete()) {
        uses_.push_back({volume_use_kind::unchecked, {}, {}});
    }
    return uses_;
}

void volume_look::take_volumes(const std::string& node) {
    std::error_code trouble;
    const fs::path scsi_device = fs::canonical(node + "/device", trouble);
    if (trouble) {
        complete_ = false;
        return;
    }
    for (const block_device& device : devices_.below(carrier_of(scsi_device).string())) {
        take(device);
    }
}

void volume_look::take(const block_device& device) {
    const bool new_one =
        std::none_of(taken_.begin(), taken_.end(),
                     [&device](const block_device& one) { return one.name == device.name; });
    if (new_one) {
        taken_.push_back(device);
        complete_ = complete_ && !device.number.empty();
    }
}

// Holders are taken as well, with their partitions, and so are theirs.
void volume_look::take_holders() {
    for (std::size_t at = 0; at < taken_.size(); ++at) {
        const block_device device = taken_[at];
        for (const block_device& holder : devices_.holders_of(device)) {
            held_.push_back({volume_use_kind::held, device.shown, holder.shown});
            for (const block_device& part : devices_.below(holder.folder)) {
                take(part);
            }
        }
    }
}

std::string volume_look::table(const std::string& path) {
    const std::optional<std::string> text = text_of(path);
    complete_ = complete_ && text.has_value();
    return text.value_or("");
}

void volume_look::find_mounts(const std::string& mountinfo) {
    const std::vector<mount_entry> mounts = mounts_of(mountinfo);
    for (const block_device& device : taken_) {
        const std::vector<block_device> pool = devices_.pool_of(device);
        for (const mount_entry& mount : mounts) {
            if (is_mount_of(mount, device, pool)) {
                add({volume_use_kind::mounted, device.shown, mount.place});
            }
        }
    }
}

// Mounted in another namespace only, or taken out of the tree of files and still open.
void volume_look::find_hidden_mounts() {
    for (const block_device& device : taken_) {
        const bool told = std::any_of(uses_.begin(), uses_.end(), [&device](const volume_use& use) {
            return use.kind == volume_use_kind::mounted && use.device == device.shown;
        });
        if (told) {
            continue;
        }
        for (const std::string& kind : devices_.file_systems_on(device)) {
            held_.push_back({volume_use_kind::open, device.shown, kind});
        }
    }
}

void volume_look::find_swaps(const std::string& swaps) {
    const std::vector<std::string> files = swaps_of(swaps);
    for (const block_device& device : taken_) {
        for (const std::string& file : files) {
            if (is_node_of(file, device)) {
                add({volume_use_kind::swap, device.shown, {}});
            }
        }
    }
}

// Several may be mounted in one place, one over the other.
void volume_look::add(volume_use use) {
    if (std::find(uses_.begin(), uses_.end(), use) == uses_.end()) {
        uses_.push_back(std::move(use));
    }
}

} // namespace

sysfs_volume_uses::sysfs_volume_uses(std::string sysfs, std::string proc)
    : sysfs_(std::move(sysfs)), proc_(std::move(proc)) {}

std::vector<volume_use> sysfs_volume_uses::of(std::uint32_t device) {
    if (is_emulated_handle(device)) {
        return {};
    }
    if (!is_sg_handle(device)) {
        return {
            {volume_use_kind::unchecked, {}, {}}}; // another library's, of which nothing is known
    }
    if (has_gone(device)) {
        return {};
    }
    const std::vector<volume_use> uses = volume_look(sysfs_).at(node_folder(device), proc_);
    return has_gone(device) ? std::vector<volume_use>() : uses;
}

std::string sysfs_volume_uses::node_folder(std::uint32_t device) const {
    return sysfs_ + "/class/scsi_generic/sg" + std::to_string(sg_minor(device));
}

// Another node may have got the number since.
bool sysfs_volume_uses::has_gone(std::uint32_t device) const {
    const std::string folder = node_folder(device);
    const std::uint64_t arrival = sysfs_arrival_number(folder);
    if (arrival != 0) {
        return sg_handle(sg_minor(device), arrival) != device;
    }
    std::error_code trouble;
    const bool there = fs::exists(folder, trouble);
    return !there && !trouble && fs::is_directory(sysfs_ + "/class/scsi_generic", trouble);
}
