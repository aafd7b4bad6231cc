// The record of one disk behind a bridge.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "model/raid.h"

// How a disk's capacity was found.
inline constexpr std::uint32_t address_lba48 = 1;
inline constexpr std::uint32_t address_lba28 = 2;
inline constexpr std::uint32_t address_chs = 3;

// Plain value. Inside a chip of krtool::chips it is written with the gate and the records lock
// held, and read with either of them (docs/threads.md).
class krdisk {
public:
    std::uint64_t capacity = 0; // sectors, from IDENTIFY
    std::string model;          // reading order, trimmed; bytes of the disk, any values
    std::string serial;         // the same
    std::int32_t raid_mode = 0; // byte 2 of its sector, 0 without a signature
    std::uint8_t member_mismatch = 0;
    std::uint8_t raid1_orphan = 0;
    std::uint8_t rebuild_mark = 0;
    std::uint8_t present = 0;
    std::uint32_t rebuild_role = 0;  // 0 none; of two diverged halves 1 later, 2 earlier stamp
    raid_info raid_info_raw;         // the sector as last read, valid or not
    std::uint64_t raid_capacity = 0; // sectors, from the record
    std::array<unsigned char, model_size> identify_model_raw{};
    std::array<unsigned char, serial_size> identify_serial_raw{};
    std::array<unsigned char, model_size> partner_model_raw{};
    std::array<unsigned char, serial_size> partner_serial_raw{};
    std::array<unsigned char, raid_time_size> raid_time{};
    std::uint32_t address_mode = address_lba48;
    std::uint64_t lba48_sectors = 0; // what IDENTIFY counts with 48-bit addressing, used or not
    std::uint64_t logical_sector_bytes = sector_size;

    // Only `present` drops; the other fields keep their last values.
    void clear();

    // Takes size, addressing and identity from a 512-byte IDENTIFY DEVICE block
    // (docs/formats.md), which may hold anything.
    void initialize(const char* identify);

    // Keeps the sector as read. A valid one gives the array fields, of which the rebuild mark is
    // only ever set here; any other gives mode 0 and leaves the rest as it was.
    void take_record(const raid_info& sector, bool valid);

    // Swaps the characters of each pair in place.
    static void unscramble(std::string& text);

    // The disk's label in the device tree. The third argument is accepted and not used.
    std::string get_display_string(bool port1, bool in_array, bool unused) const;

    // Where its metadata sector lies: 15 sectors before the end. A disk smaller than that, or
    // without a size, gives an address beyond any disk, which the library refuses.
    std::uint64_t metadata_lba() const { return capacity - metadata_distance; }

    // Whether its record names that disk as the partner, by model and serial number.
    bool names(const krdisk& other) const;
    // Whether its record names no partner, as that of a mirror member that runs alone does.
    bool names_nobody() const;

    // Belongs to a RAID 0, RAID 1 or span.
    bool is_member() const { return is_array_mode(raid_mode); }
};
