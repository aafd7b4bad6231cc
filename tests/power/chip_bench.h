// The emulated chip over a pair of disks that comes from elsewhere.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "enclosure/bays.h"
#include "enclosure/disk_io.h"
#include "enclosure/volume.h"
#include "tests/enclosure/temporary_folder.h"
#include "tests/power/disk_pair.h"

// What the chip makes of the disks at power-on.
struct chip_reading {
    enclosure::volume presented;
    std::optional<enclosure::copy_order> copy;
    int read_port = 0; // where sector 0 of the volume is read, when there is a volume
};

// One thread.
class chip_bench {
public:
    chip_bench();

    // By the chip's own decoding alone.
    static chip_reading read(const disk_pair& disks);

    // Switches a chip on over these disks and lets it copy to the end. Throws std::logic_error when
    // it writes anything but the area of the copy on the target, or reports another copy than
    // read() does. The disks must be first_disk() on port 0 and second_disk() on port 1.
    void power_on(disk_pair& disks);

private:
    // Brings the image to this content, and the other way round.
    void lay_down(std::size_t port, const disk_content& wanted);
    void take_up(std::size_t port, disk_content& to, const disk_content& from_source);

    temporary_folder folder_;
    std::array<std::shared_ptr<enclosure::disk>, 2> disks_;
    disk_contents laid_; // what is in the images
};
