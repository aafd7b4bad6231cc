// The metadata sector (docs/formats.md).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <ctime>

// Array kinds, in the sector and in the records: RAID 0, RAID 1 and span; any other number is no
// array.
inline constexpr int mode_raid0 = 1;
inline constexpr int mode_raid1 = 2;
inline constexpr int mode_span = 4;

constexpr bool is_array_mode(int mode) {
    return mode == mode_raid0 || mode == mode_raid1 || mode == mode_span;
}

// The RAID record lies so many sectors before the end of its disk.
inline constexpr std::uint64_t metadata_distance = 15;

inline constexpr std::size_t sector_size = 512;   // bytes
inline constexpr std::size_t serial_size = 20;    // bytes of an IDENTIFY serial number
inline constexpr std::size_t model_size = 40;     // bytes of an IDENTIFY model
inline constexpr std::size_t raid_time_size = 16; // bytes of a time stamp

// One sector as it stands on the disk: numbers little-endian, identities raw.
struct raid_info {
    static constexpr std::size_t mode_offset = 2;
    static constexpr std::size_t member_offset = 3;
    static constexpr std::size_t flags_offset = 4;
    static constexpr std::size_t extra_offset = 5;
    static constexpr std::size_t capacity_offset = 8;
    static constexpr std::size_t serial_offset = 16;
    static constexpr std::size_t model_offset = 36;
    static constexpr std::size_t time_offset = 480;
    static constexpr std::size_t large_offset = 496;
    static constexpr std::size_t tag_offset = 504;
    static constexpr unsigned char rebuild_bit = 0x80; // of the flags: source of a rebuild

    std::array<unsigned char, sector_size> bytes{};

    unsigned char* data() { return bytes.data(); }
    const unsigned char* data() const { return bytes.data(); }

    // The sector begins with the signature "KR".
    bool has_signature() const;
    std::uint8_t raid_mode() const { return bytes[mode_offset]; }
    bool rebuild_mark() const { return (bytes[flags_offset] & rebuild_bit) != 0; }
    std::uint64_t raid_capacity() const; // sectors
    bool large_array() const { return bytes[large_offset] != 0; }
    // Zeroes flags and extra together, which takes the rebuild mark away.
    void clear_rebuild_flags();
};
static_assert(sizeof(raid_info) == sector_size);

// Builds a sector. mode, member and flags: the low 8 bits; extra: the low 24; capacity in sectors;
// partner_serial 20, partner_model 40 and time 16 bytes, which are copied. Any thread, no errors.
raid_info create_raid_struct(int mode, int member, int flags, int extra,
                             unsigned long long capacity, const unsigned char* partner_serial,
                             const unsigned char* partner_model, bool large,
                             const unsigned char* time);

// Writes `now` as local time, 14 digits from year to second and a zero byte, to `out`, which has
// 16 bytes and is cleared first; zeros alone when the time has no such form. Any thread.
void GetTimeString(unsigned char* out, std::time_t now);
// The same for the present moment.
void GetTimeString(unsigned char* out);
