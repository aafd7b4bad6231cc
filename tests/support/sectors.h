// The two kinds of 512-byte blocks that disks hand out, laid down byte by byte. Nothing here
// comes from the model, so that a wrong offset in the model shows.
#pragma once

#include <array>
#include <cstdint>
#include <string>

using sector_bytes = std::array<unsigned char, 512>;

// `text` padded with blanks to `size`, the characters of each pair swapped: how a disk stores it.
std::string stored_text(const std::string& text, std::size_t size);

// An IDENTIFY DEVICE block. Every number lies where it belongs whether or not the two bits that
// announce it are set.
struct identify_block {
    std::string model = "KESTREL TEST DISK";
    std::string serial = "SN-0";
    bool lba48 = true;           // word 85, bit 10
    bool lba = true;             // word 49, bit 9
    std::uint64_t sectors48 = 0; // words 100 to 103
    std::uint32_t sectors28 = 0; // words 60 and 61
    std::uint16_t cylinders = 0; // words 54, 55, 56
    std::uint16_t heads = 0;
    std::uint16_t sectors_per_track = 0;
    unsigned char integrity = 0xA5; // byte 510

    sector_bytes bytes() const;
};

// A disk of `sectors` with 48-bit addressing.
identify_block identify_of(const std::string& model, const std::string& serial,
                           std::uint64_t sectors);

// The sector in which a disk says what array it belongs to.
struct metadata_sector {
    std::string signature = "KR";
    unsigned char mode = 0;
    unsigned char member = 0;
    unsigned char flags = 0;
    std::uint32_t extra = 0; // 24 bits
    std::uint64_t capacity = 0;
    std::string partner_serial = std::string(20, '\0'); // as stored
    std::string partner_model = std::string(40, '\0');  // as stored
    std::string time = "20240229123456";                // up to 16 characters
    unsigned char large = 0;
    std::string tag = "Kestrel ";

    sector_bytes bytes() const;
};

// A record of `mode` on port `member` that names the disk of `partner`.
metadata_sector metadata_of(int mode, int member, std::uint64_t capacity,
                            const identify_block& partner);

// 64 hexadecimal digits a line, 16 lines.
std::string hex_dump(const sector_bytes& bytes);
