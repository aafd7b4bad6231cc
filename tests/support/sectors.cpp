#include "tests/support/sectors.h"

#include <algorithm>
#include <utility>

namespace {

void put(sector_bytes& bytes, std::size_t offset, const std::string& text) {
    std::copy(text.begin(), text.end(), bytes.begin() + static_cast<std::ptrdiff_t>(offset));
}

void put_number(sector_bytes& bytes, std::size_t offset, std::uint64_t value, int width) {
    for (int i = 0; i < width; ++i) {
        bytes[offset++] = static_cast<unsigned char>(value & 0xFFU);
        value >>= 8;
    }
}

} // namespace

std::string stored_text(const std::string& text, std::size_t size) {
    std::string stored = text;
    stored.resize(size, ' ');
    for (std::size_t i = 0; i + 1 < size; i += 2) {
        std::swap(stored[i], stored[i + 1]);
    }
    return stored;
}

sector_bytes identify_block::bytes() const {
    sector_bytes block{};
    put(block, 20, stored_text(serial, 20));
    put(block, 54, stored_text(model, 40));
    put_number(block, 98, lba ? 0x0200 : 0, 2);
    put_number(block, 108, cylinders, 2);
    put_number(block, 110, heads, 2);
    put_number(block, 112, sectors_per_track, 2);
    put_number(block, 120, sectors28, 4);
    put_number(block, 170, lba48 ? 0x0400 : 0, 2);
    put_number(block, 200, sectors48, 8);
    block[510] = integrity;
    return block;
}

identify_block identify_of(const std::string& model, const std::string& serial,
                           std::uint64_t sectors) {
    identify_block block;
    block.model = model;
    block.serial = serial;
    block.sectors48 = sectors;
    block.sectors28 = static_cast<std::uint32_t>(std::min<std::uint64_t>(sectors, 0x0FFFFFFF));
    return block;
}

sector_bytes metadata_sector::bytes() const {
    sector_bytes sector{};
    put(sector, 0, signature);
    sector[2] = mode;
    sector[3] = member;
    sector[4] = flags;
    put_number(sector, 5, extra, 3);
    put_number(sector, 8, capacity, 8);
    put(sector, 16, partner_serial);
    put(sector, 36, partner_model);
    put(sector, 480, time);
    sector[496] = large;
    put(sector, 504, tag);
    return sector;
}

metadata_sector metadata_of(int mode, int member, std::uint64_t capacity,
                            const identify_block& partner) {
    metadata_sector sector;
    sector.mode = static_cast<unsigned char>(mode);
    sector.member = static_cast<unsigned char>(member);
    sector.capacity = capacity;
    sector.partner_serial = stored_text(partner.serial, 20);
    sector.partner_model = stored_text(partner.model, 40);
    sector.large = capacity > 0xFFFFFFFFU ? 1 : 0;
    return sector;
}

std::string hex_dump(const sector_bytes& bytes) {
    constexpr const char* digits = "0123456789abcdef";
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        text += digits[bytes[i] >> 4];
        text += digits[bytes[i] & 0x0F];
        if (i % 32 == 31) {
            text += '\n';
        }
    }
    return text;
}
