// Tables of mounts and swap areas with anything in them: what uses the volume is found all the
// same.
#include "device/mount_table.h"
#include "device/sysfs_volume_uses.h"

#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/target.h"
#include "tests/unit/block_tree.h"

#include <algorithm>

namespace {

// A bridge with the disk sdb and its partitions sdb1 and sdb2.
class used_tree {
public:
    used_tree() : handle_(tree_.add({})) {
        tree_.add_disk({}, "sdb", "8:16");
        tree_.add_partition("sdb", "sdb1", "8:17");
        tree_.add_partition("sdb", "sdb2", "8:18");
    }

    std::vector<volume_use> uses_with(const std::string& mounts, const std::string& swaps) {
        tree_.write("proc/self/mountinfo", mounts);
        tree_.write("proc/swaps", swaps);
        return sysfs_volume_uses(tree_.sysfs(), tree_.proc()).of(handle_);
    }

private:
    block_tree tree_;
    std::uint32_t handle_;
};

void check_parts(const std::string& table) {
    const auto lines = static_cast<std::size_t>(std::count(table.begin(), table.end(), '\n')) + 1;
    const std::vector<mount_entry> mounts = mounts_of(table);
    require(mounts.size() <= lines && swaps_of(table).size() <= lines,
            "a line tells of one thing at most");
    for (const mount_entry& mount : mounts) {
        require(!mount.number.empty() && mount.place.size() + mount.source.size() < table.size(),
                "an entry is made of what the table says");
    }
}

bool has(const std::vector<volume_use>& uses, const volume_use& wanted) {
    return std::find(uses.begin(), uses.end(), wanted) != uses.end();
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static used_tree tree;
    std::string table = byte_source(data, size).rest();
    check_parts(table);
    std::replace(table.begin(), table.end(), '\0', ' '); // the kernel's tables are text
    const std::vector<volume_use> uses = tree.uses_with(
        table + "\n36 25 8:17 / /mnt/data rw,noatime shared:1 - ext4 /dev/sdb1 rw\n" + table,
        table + "\n/dev/sdb2 partition 1048572 0 -2\n" + table);
    require(has(uses, {volume_use_kind::mounted, "sdb1", "/mnt/data"}),
            "no other line hides a mount");
    require(has(uses, {volume_use_kind::swap, "sdb2", {}}), "no other line hides a swap area");
    return 0;
}
