#include "model/krdisk.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "util/bytes.h"
#include "util/functions.h"

namespace {

constexpr std::size_t word(std::size_t number) {
    return 2 * number;
}

constexpr std::size_t serial_offset = word(10);
constexpr std::size_t model_offset = word(27);

constexpr bool bit_set(std::uint16_t value, int bit) {
    return ((value >> bit) & 1) != 0;
}

struct disk_size {
    std::uint64_t sectors;
    std::uint32_t address_mode;
};

disk_size size_of(const unsigned char* identify) {
    const std::uint64_t sectors48 = load_le64(identify + word(100));
    if (bit_set(load_le16(identify + word(85)), 10) && sectors48 != 0) {
        return {sectors48, address_lba48};
    }
    if (bit_set(load_le16(identify + word(49)), 9)) {
        return {load_le32(identify + word(60)), address_lba28};
    }
    const std::uint32_t product = std::uint32_t{load_le16(identify + word(54))} *
                                  load_le16(identify + word(55)) * load_le16(identify + word(56));
    // The product is a signed number here: above 2^31 - 1 it becomes a huge capacity.
    const auto widened = static_cast<std::int64_t>(static_cast<std::int32_t>(product));
    return {static_cast<std::uint64_t>(widened), address_chs};
}

// Sectors of another length than 512 bytes are announced in word 106 and counted in 16-bit words.
std::uint64_t sector_bytes_of(const unsigned char* identify) {
    const std::uint16_t kind = load_le16(identify + word(106));
    const bool announced = bit_set(kind, 14) && !bit_set(kind, 15) && bit_set(kind, 12);
    return announced ? 2 * std::uint64_t{load_le32(identify + word(117))} : sector_size;
}

template<std::size_t N>
std::string take_text(const unsigned char* from, std::array<unsigned char, N>& raw) {
    std::copy_n(from, N, raw.begin());
    std::string text(raw.begin(), raw.end());
    krdisk::unscramble(text);
    trim(text);
    return text;
}

} // namespace

void krdisk::clear() {
    present = 0;
}

void krdisk::initialize(const char* identify) {
    std::array<unsigned char, sector_size> block{};
    std::copy_n(identify, sector_size, block.begin());
    model = take_text(block.data() + model_offset, identify_model_raw);
    serial = take_text(block.data() + serial_offset, identify_serial_raw);
    const disk_size size = size_of(block.data());
    capacity = size.sectors;
    address_mode = size.address_mode;
    lba48_sectors = load_le64(block.data() + word(100));
    logical_sector_bytes = sector_bytes_of(block.data());
}

void krdisk::take_record(const raid_info& sector, bool valid) {
    raid_info_raw = sector;
    if (!valid) {
        raid_mode = 0;
        return;
    }
    raid_mode = sector.raid_mode();
    if (sector.rebuild_mark()) {
        rebuild_mark = 1;
    }
    raid_capacity = sector.raid_capacity();
    const unsigned char* bytes = sector.data();
    std::copy_n(bytes + raid_info::time_offset, raid_time_size, raid_time.begin());
    std::copy_n(bytes + raid_info::model_offset, model_size, partner_model_raw.begin());
    std::copy_n(bytes + raid_info::serial_offset, serial_size, partner_serial_raw.begin());
}

void krdisk::unscramble(std::string& text) {
    for (std::size_t i = 0; i + 1 < text.size(); i += 2) {
        std::swap(text[i], text[i + 1]);
    }
}

std::string krdisk::get_display_string(bool port1, bool in_array, bool /*unused*/) const {
    std::string label(in_array ? "M" : "P");
    label += port1 ? "1: " : "0: ";
    return label + model;
}

bool krdisk::names(const krdisk& other) const {
    return str_equal(partner_model_raw.data(), other.identify_model_raw.data(),
                     static_cast<int>(model_size)) &&
           str_equal(partner_serial_raw.data(), other.identify_serial_raw.data(),
                     static_cast<int>(serial_size));
}

bool krdisk::names_nobody() const {
    const auto is_zero = [](unsigned char byte) { return byte == 0; };
    return std::all_of(partner_model_raw.begin(), partner_model_raw.end(), is_zero) &&
           std::all_of(partner_serial_raw.begin(), partner_serial_raw.end(), is_zero);
}
