// IDENTIFY blocks: the program and the chip read the same out of them.
#include "enclosure/metadata.h"
#include "model/krdisk.h"

#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/target.h"

#include <algorithm>

namespace {

const char* as_text(const enclosure::identify_block& block) {
    return reinterpret_cast<const char*>(block.data());
}

bool same(const krdisk& a, const krdisk& b) {
    return a.capacity == b.capacity && a.model == b.model && a.serial == b.serial &&
           a.address_mode == b.address_mode && a.lba48_sectors == b.lba48_sectors &&
           a.logical_sector_bytes == b.logical_sector_bytes &&
           a.identify_model_raw == b.identify_model_raw &&
           a.identify_serial_raw == b.identify_serial_raw;
}

void check_texts(const krdisk& disk) {
    constexpr const char* blanks = " \n\t";
    for (const std::string& text : {disk.model, disk.serial}) {
        require(text.empty() || (text.find_first_of(blanks) != 0 &&
                                 text.find_last_of(blanks) != text.size() - 1),
                "a text has no blanks around it");
    }
    require(disk.model.size() <= model_size, "a model has at most 40 characters");
    require(disk.serial.size() <= serial_size, "a serial number has at most 20 characters");
    require(disk.get_display_string(false, false, false) == "P0: " + disk.model,
            "the label ends with the whole model");
}

void check_against_chip(const krdisk& disk, const enclosure::identify_block& block) {
    const enclosure::raw_identity identity = enclosure::identity_of(block);
    require(
        std::equal(identity.model.begin(), identity.model.end(), disk.identify_model_raw.begin()) &&
            std::equal(identity.serial.begin(), identity.serial.end(),
                       disk.identify_serial_raw.begin()),
        "program and chip know the disk by the same bytes");
    require(enclosure::identify_sectors(block) == disk.capacity,
            "program and chip read the same size");
    const auto address = enclosure::record_address(disk.capacity);
    require(!address || *address == disk.metadata_lba(),
            "program and chip look for the record in the same sector");
    require(address || disk.capacity == metadata_distance || disk.metadata_lba() >= disk.capacity,
            "the record of a disk that is too small lies outside it");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    byte_source source(data, size);
    const auto block = source.block<sector_size>();
    const auto other = source.block<sector_size>();
    krdisk disk;
    disk.initialize(as_text(block));
    require(disk.address_mode >= address_lba48 && disk.address_mode <= address_chs,
            "the size was found in one of three ways");
    check_texts(disk);
    check_against_chip(disk, block);

    krdisk used;
    used.initialize(as_text(other));
    used.initialize(as_text(block));
    require(same(used, disk), "nothing is left of what was read before");
    return 0;
}
