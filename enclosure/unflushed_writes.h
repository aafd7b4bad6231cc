// What a disk was given to write and not yet told to make lasting.
#pragma once

#include "enclosure/disk_image.h"

#include <cstdint>
#include <deque>
#include <vector>

namespace enclosure {

// Keeps what the sectors held before, so that a power cut can bring it back. A disk has room for
// so much only: what it is given beyond that makes its oldest writes lasting. One thread at a time.
class unflushed_writes {
public:
    static constexpr std::uint64_t room = 8192; // sectors: 4 MiB

    // To be called before sectors of the image are changed.
    void note(const disk_image& image, std::uint64_t lba, std::uint64_t count);

    // Everything written so far is lasting.
    void settle();

    // Brings back what the sectors held, latest write first. False: the file system refused.
    bool undo(disk_image& image);

private:
    struct former_content {
        std::uint64_t lba;
        std::uint64_t count;            // sectors
        std::vector<std::uint8_t> data; // empty: the image stored nothing
    };

    std::deque<former_content> former_;
    std::uint64_t held_ = 0; // sectors
};

} // namespace enclosure
