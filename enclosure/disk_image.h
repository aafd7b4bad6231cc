// The sectors of a disk in a sparse file.
#pragma once

#include "enclosure/file_handle.h"
#include "enclosure/units.h"

#include <cstdint>
#include <filesystem>

namespace enclosure {

// Sector addresses and counts are those of 512-byte sectors. One thread at a time. What lies
// outside the disk, and what the file system refuses, makes an operation false.
class disk_image {
public:
    // Makes a new file of mode 0600 with all sectors zero; it takes no space. Throws problem when
    // there is one already, or the file system cannot hold it.
    static disk_image create(const std::filesystem::path& file, std::uint64_t sectors);

    // Opens an existing one. Throws problem, with what is wrong alone, when it is missing, no
    // plain file or shorter than the disk.
    disk_image(const std::filesystem::path& file, std::uint64_t sectors);

    // `data` is a whole number of sectors.
    bool read(std::uint64_t lba, byte_room data) const;
    bool write(std::uint64_t lba, byte_view data);

    // Makes sectors zero and gives their space back.
    bool clear(std::uint64_t lba, std::uint64_t count);

    // Makes what was written lasting.
    bool flush();

    // The sectors from `lba` on that are alike: stored, or zero without space. At most `limit`.
    struct extent {
        bool stored;
        std::uint64_t count;
    };
    extent extent_at(std::uint64_t lba, std::uint64_t limit) const;

    std::uint64_t sectors() const { return sectors_; }

private:
    disk_image(file_handle file, std::uint64_t sectors)
        : file_(std::move(file)), sectors_(sectors) {}

    bool holds(std::uint64_t lba, std::uint64_t count) const;
    bool write_zeros(std::uint64_t lba, std::uint64_t count);

    file_handle file_;
    std::uint64_t sectors_;
};

} // namespace enclosure
