// Uses of the volumes of real bridges, as the kernel tells of them.
#pragma once

#include "device/volume_uses.h"

#include <string>

// Looks at the block devices of the USB or FireWire device that carries the bridge, all its logical
// units and partitions included, at what other drivers have put on them, and at the tables of
// mounts and swap areas. What is mounted in another namespace alone is not seen.
class sysfs_volume_uses final : public volume_uses {
public:
    // Where sysfs and proc are.
    explicit sysfs_volume_uses(std::string sysfs = "/sys", std::string proc = "/proc");

    std::vector<volume_use> of(std::uint32_t device) override;

private:
    std::string node_folder(std::uint32_t device) const;
    // False also when that cannot be found out.
    bool has_gone(std::uint32_t device) const;

    const std::string sysfs_;
    const std::string proc_;
};
