#include "enclosure/identify.h"

#include "enclosure/hex.h"
#include "enclosure/names.h"
#include "enclosure/numbers.h"
#include "enclosure/problem.h"

#include <algorithm>
#include <numeric>

namespace enclosure {

namespace {

constexpr std::size_t serial_word = 10;
constexpr std::size_t serial_length = 20;
constexpr std::size_t firmware_word = 23;
constexpr std::size_t firmware_length = 8;
constexpr std::size_t model_word = 27;
constexpr std::size_t model_length = 40;

constexpr std::uint64_t largest_disk = 1ULL << 37; // sectors: 64 TiB
constexpr std::uint64_t largest_28bit = 0x0FFFFFFF;
constexpr std::uint64_t sectors_per_track = 63;
constexpr std::uint64_t largest_word = 0xFFFF;

constexpr std::uint8_t signature = 0xA5;

std::uint64_t word(const identify_block& block, std::size_t index, std::size_t words = 1) {
    return get_le(&block[2 * index], 2 * words);
}

void set_word(identify_block& block, std::size_t index, std::uint64_t value,
              std::size_t words = 1) {
    put_le(&block[2 * index], value, 2 * words);
}

void set_text(identify_block& block, std::size_t first_word, std::size_t length,
              const std::string& text, std::string_view what) {
    if (text.size() > length || printable(text) != text) {
        throw problem("disk " + std::string(what) + " '" + printable(text) +
                      "' does not fit; at most " + std::to_string(length) +
                      " printable ASCII characters");
    }
    std::string padded = text;
    padded.resize(length, ' ');
    for (std::size_t i = 0; i < length; ++i) {
        block[2 * first_word + (i ^ 1U)] = static_cast<std::uint8_t>(padded[i]);
    }
}

std::string text_at(const identify_block& block, std::size_t first_word, std::size_t length) {
    std::string text;
    for (std::size_t i = 0; i < length; ++i) {
        text += static_cast<char>(block[2 * first_word + (i ^ 1U)]);
    }
    constexpr std::string_view padding(" \0", 2);
    const std::size_t from = text.find_first_not_of(padding);
    if (from == std::string::npos) {
        return {};
    }
    return text.substr(from, text.find_last_not_of(padding) - from + 1);
}

struct geometry {
    std::uint64_t cylinders;
    std::uint64_t heads;
};

geometry geometry_for(std::uint64_t sectors) {
    constexpr std::uint64_t few_heads = 16;
    constexpr std::uint64_t many_heads = 255;
    const std::uint64_t heads =
        sectors / (few_heads * sectors_per_track) > largest_word ? many_heads : few_heads;
    return {std::min(sectors / (heads * sectors_per_track), largest_word), heads};
}

void set_geometry(identify_block& block, const geometry& disk) {
    set_word(block, 54, disk.cylinders);
    set_word(block, 55, disk.heads);
    set_word(block, 56, sectors_per_track);
    set_word(block, 57, disk.cylinders * disk.heads * sectors_per_track, 2);
}

void set_size_chs(identify_block& block, std::uint64_t sectors) {
    const geometry disk = geometry_for(sectors);
    const std::uint64_t held = disk.cylinders * disk.heads * sectors_per_track;
    if (disk.cylinders == 0 || sectors - held >= disk.heads * sectors_per_track) {
        throw problem("a disk of " + std::to_string(sectors) +
                      " sectors has no cylinder count; take 1008 to 1052835839 sectors or 28-bit "
                      "addressing");
    }
    set_geometry(block, disk);
}

void set_size_lba(identify_block& block, const disk_label& label) {
    if (label.mode == addressing::lba28 && label.sectors > largest_28bit) {
        throw problem("a disk of " + std::to_string(label.sectors) +
                      " sectors is too large for 28-bit addressing; take 48-bit addressing or at "
                      "most 268435455 sectors");
    }
    set_geometry(block, geometry_for(std::min<std::uint64_t>(label.sectors, 16383ULL * 16 * 63)));
    set_word(block, 49, 0x0200);
    set_word(block, 60, std::min(label.sectors, largest_28bit), 2);
    if (label.mode == addressing::lba48) {
        set_word(block, 83, 0x4400);
        set_word(block, 85, 0x0400);
        set_word(block, 86, 0x0400);
        set_word(block, 100, label.sectors, 4);
    }
}

void seal(identify_block& block) {
    block[510] = signature;
    const unsigned sum = std::accumulate(block.begin(), block.begin() + 511, 0U);
    block[511] = static_cast<std::uint8_t>(0U - sum);
}

std::string without_white_space(std::string_view text) {
    std::string dense;
    std::copy_if(text.begin(), text.end(), std::back_inserter(dense),
                 [](char c) { return c != ' ' && c != '\n' && c != '\r' && c != '\t'; });
    return dense;
}

} // namespace

void check_disk_size(std::uint64_t sectors) {
    if (sectors == 0 || sectors > largest_disk) {
        throw problem("a disk of " + std::to_string(sectors) +
                      " sectors cannot be emulated; take 1 to " + std::to_string(largest_disk) +
                      " sectors");
    }
}

identify_block build_identify(const disk_label& label) {
    check_disk_size(label.sectors);
    identify_block block{};
    set_word(block, 0, 0x0040);
    set_word(block, 1, 16383);
    set_word(block, 3, 16);
    set_word(block, 6, sectors_per_track);
    set_text(block, serial_word, serial_length, label.serial, "serial number");
    set_text(block, firmware_word, firmware_length, "1.0", "firmware");
    set_text(block, model_word, model_length, label.model, "model");
    set_word(block, 53, 0x0001);
    set_word(block, 80, 0x00F0);
    if (label.mode == addressing::chs) {
        set_size_chs(block, label.sectors);
    } else {
        set_size_lba(block, label);
    }
    seal(block);
    return block;
}

std::uint64_t identify_sectors(const identify_block& block) {
    constexpr std::uint64_t has_48bit = 0x0400;
    constexpr std::uint64_t has_lba = 0x0200;
    const std::uint64_t large = word(block, 100, 4);
    if ((word(block, 85) & has_48bit) != 0 && large != 0) {
        return large;
    }
    if ((word(block, 49) & has_lba) != 0) {
        return word(block, 60, 2);
    }
    // Hosts multiply in 32 bits and widen the signed result.
    const auto product =
        static_cast<std::uint32_t>(word(block, 54) * word(block, 55) * word(block, 56));
    return static_cast<std::uint64_t>(std::int64_t{static_cast<std::int32_t>(product)});
}

std::string identify_model(const identify_block& block) {
    return text_at(block, model_word, model_length);
}

std::string identify_serial(const identify_block& block) {
    return text_at(block, serial_word, serial_length);
}

bool identify_counts(const identify_block& block) {
    return block[510] == signature;
}

identify_block parse_identify(std::string_view content, std::string_view what) {
    identify_block block{};
    if (content.size() == block.size()) {
        std::copy(content.begin(), content.end(), block.begin());
        return block;
    }
    if (!from_hex(without_white_space(content), block)) {
        throw problem(std::string(what) + " is no IDENTIFY block; give 512 bytes or 1024 "
                                          "hexadecimal digits");
    }
    return block;
}

} // namespace enclosure
