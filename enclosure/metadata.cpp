#include "enclosure/metadata.h"

#include "enclosure/numbers.h"

#include <algorithm>

namespace enclosure {

namespace {

constexpr std::uint64_t from_the_end = 15;

// Byte offsets in the sector.
constexpr std::size_t at_signature = 0;
constexpr std::size_t at_kind = 2;
constexpr std::size_t at_member = 3;
constexpr std::size_t at_flags = 4;
constexpr std::size_t at_sectors = 8;
constexpr std::size_t at_partner_serial = 16;
constexpr std::size_t at_partner_model = 36;
constexpr std::size_t at_partner_end = 76;
constexpr std::size_t at_stamp = 480;
constexpr std::size_t at_alone = at_stamp + 15;
constexpr std::size_t at_large = 496;
constexpr std::size_t at_tag = 504;

constexpr std::uint8_t source_flag = 0x80;
constexpr std::string_view signature = "KR";
constexpr std::string_view tag = "Kestrel ";
constexpr std::uint64_t large_array = 1ULL << 32; // sectors

array_kind kind_of(std::uint8_t code) {
    switch (code) {
    case 1:
        return array_kind::stripe;
    case 2:
        return array_kind::mirror;
    case 4:
        return array_kind::span;
    default:
        return array_kind::none;
    }
}

template<std::size_t Size>
void take(std::array<std::uint8_t, Size>& to, const sector_data& sector, std::size_t from) {
    std::copy_n(sector.begin() + static_cast<std::ptrdiff_t>(from), Size, to.begin());
}

template<class Bytes> void put(sector_data& sector, std::size_t at, const Bytes& bytes) {
    std::copy(bytes.begin(), bytes.end(), sector.begin() + static_cast<std::ptrdiff_t>(at));
}

} // namespace

raw_identity identity_of(const identify_block& block) {
    raw_identity identity;
    take(identity.serial, block, 20);
    take(identity.model, block, 54);
    return identity;
}

std::optional<std::uint64_t> record_address(std::uint64_t disk_sectors) {
    if (disk_sectors <= from_the_end) {
        return std::nullopt;
    }
    return disk_sectors - from_the_end;
}

std::optional<array_record> read_record(const sector_data& sector) {
    if (!std::equal(signature.begin(), signature.end(), sector.begin() + at_signature)) {
        return std::nullopt;
    }
    array_record record;
    record.kind = kind_of(sector[at_kind]);
    record.member = sector[at_member];
    record.copy_source = (sector[at_flags] & source_flag) != 0;
    record.sectors = get_le(&sector[at_sectors], 8);
    take(record.partner.serial, sector, at_partner_serial);
    take(record.partner.model, sector, at_partner_model);
    take(record.stamp, sector, at_stamp);
    return record;
}

sector_data write_record(const array_record& record) {
    sector_data sector{};
    put(sector, at_signature, signature);
    sector[at_kind] = static_cast<std::uint8_t>(record.kind);
    sector[at_member] = record.member;
    sector[at_flags] = record.copy_source ? source_flag : 0;
    put_le(&sector[at_sectors], record.sectors, 8);
    put(sector, at_partner_serial, record.partner.serial);
    put(sector, at_partner_model, record.partner.model);
    put(sector, at_stamp, record.stamp);
    sector[at_large] = record.sectors >= large_array ? 1 : 0;
    put(sector, at_tag, tag);
    return sector;
}

void mark_alone(sector_data& sector) {
    sector[at_alone] = sector[at_member] == 0 ? 1 : 2;
}

void unmark_alone(sector_data& sector) {
    sector[at_alone] = 0;
}

bool written_alone(const array_record& record) {
    return record.stamp.back() != 0;
}

void mark_source(sector_data& sector) {
    sector[at_flags] |= source_flag;
}

void keep_alone_mark(sector_data& written, const sector_data& former) {
    const bool same_time = std::equal(&written[at_stamp], &written[at_alone], &former[at_stamp]);
    const bool names_partner = std::any_of(&written[at_partner_serial], &written[at_partner_end],
                                           [](std::uint8_t byte) { return byte != 0; });
    if (former[at_alone] != 0 && (same_time || !names_partner)) {
        mark_alone(written);
    } else if (same_time) {
        unmark_alone(written);
    }
}

std::array<std::uint8_t, 16> stamp_of(std::string_view digits) {
    std::array<std::uint8_t, 16> stamp{};
    std::copy_n(digits.begin(), std::min<std::size_t>(digits.size(), 14), stamp.begin());
    return stamp;
}

} // namespace enclosure
