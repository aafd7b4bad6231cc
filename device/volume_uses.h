// Who uses the volume of a bridge besides us.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

enum class volume_use_kind {
    mounted,
    swap,
    held,      // by another driver: encryption, LVM, software RAID, a cache
    open,      // a file system that is mounted nowhere to be seen: in a container, or taken out of
               // the tree while files are open
    unchecked, // it cannot be found out whether there are others; names nothing
};

struct volume_use {
    volume_use_kind kind = volume_use_kind::unchecked;
    std::string device; // the disk, partition or mapped device, as "sdb1"
    std::string where;  // mounted: its mount point, any bytes; held: who holds it; open: the kind

    bool operator==(const volume_use& other) const = default;
};

// Any thread but the interface thread, several at once. Blocks for a look at local data only.
class volume_uses {
public:
    virtual ~volume_uses() = default;

    // All uses of the volumes of the bridge with that handle of the access library, partitions and
    // what lies on them included: mount points first, then swap areas, then holders and open file
    // systems. Empty for a bridge that has no volume here, or has gone.
    virtual std::vector<volume_use> of(std::uint32_t device) = 0;
};
