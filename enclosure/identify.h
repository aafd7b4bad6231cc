// IDENTIFY DEVICE blocks: what a disk says about itself. Words are little-endian, texts have the
// bytes of each word swapped and are padded with blanks.
#pragma once

#include "enclosure/units.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace enclosure {

using identify_block = sector_data;

enum class addressing { lba48, lba28, chs };

struct disk_label {
    std::string model;         // at most 40 printable ASCII characters
    std::string serial;        // at most 20
    std::uint64_t sectors = 0; // of 512 bytes
    addressing mode = addressing::lba48;
};

// A disk of 1 sector up to 64 TiB can be emulated. Throws problem for another size.
void check_disk_size(std::uint64_t sectors);

// The block of such a disk. A size in cylinders, heads and sectors is rounded down to whole
// cylinders. Throws problem when a text is too long or the size does not fit its addressing.
identify_block build_identify(const disk_label& label);

// The disk's size in sectors as hosts read it; 0 and impossible sizes included.
std::uint64_t identify_sectors(const identify_block& block);

// The texts in reading order without the padding; any bytes may be in them.
std::string identify_model(const identify_block& block);
std::string identify_serial(const identify_block& block);

// Byte 510 holds the integrity signature: only such a block counts as a disk.
bool identify_counts(const identify_block& block);

// A block given as 512 bytes or as 1024 hexadecimal digits with blanks and line ends anywhere
// between. Throws problem for anything else; `what` names the source in its text.
identify_block parse_identify(std::string_view content, std::string_view what);

} // namespace enclosure
