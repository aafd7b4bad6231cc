// The sector by which a disk says what array it belongs to, as the chip's firmware reads it.
#pragma once

#include "enclosure/identify.h"
#include "enclosure/units.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace enclosure {

// All that is declared here: any thread, no errors; a sector may hold any bytes.

enum class array_kind : std::uint8_t { none = 0, stripe = 1, mirror = 2, span = 4 };

// What a disk's identity looks like from its partner's sector: words 10-19 and 27-46 as they are.
struct raw_identity {
    std::array<std::uint8_t, 20> serial{};
    std::array<std::uint8_t, 40> model{};

    bool operator==(const raw_identity&) const = default;
};

raw_identity identity_of(const identify_block& block);

struct array_record {
    array_kind kind = array_kind::none;
    std::uint8_t member = 0;              // port
    bool copy_source = false;             // its data is to be copied to the partner
    std::uint64_t sectors = 0;            // of the whole array
    raw_identity partner;                 // all zero when there is none
    std::array<std::uint8_t, 16> stamp{}; // time of writing: 14 digits, a zero, the mark of below

    bool operator==(const array_record&) const = default;
};

// Where the sector lies on a disk of so many sectors: 15 before its end. Nothing on a disk of
// fewer than 16 sectors.
std::optional<std::uint64_t> record_address(std::uint64_t disk_sectors);

// Nothing when the sector has no signature. A kind that does not exist is read as none.
std::optional<array_record> read_record(const sector_data& sector);

// The sector for a record.
sector_data write_record(const array_record& record);

// Marks a member's sector in the last byte of its stamp: data was written to it without its
// partner. Its stamp becomes later than the partner's, and never the same as that of a partner
// marked likewise.
void mark_alone(sector_data& sector);

// Takes that mark away; a sector without it stays as it is.
void unmark_alone(sector_data& sector);

// Whether the member carries that mark.
bool written_alone(const array_record& record);

// Marks a member's sector as that of a copy's source.
void mark_source(sector_data& sector);

// Leaves the mark of a member that was written alone as it is in `former`, in whose place a host
// writes a record of the same time, both of mirror members; a host may know an earlier one. With
// another time, a record that names no partner keeps a mark; one that does is a new order to both.
void keep_alone_mark(sector_data& written, const sector_data& former);

// The stamp for a text of 14 digits.
std::array<std::uint8_t, 16> stamp_of(std::string_view digits);

} // namespace enclosure
