// The commands that ask what the chip and its volume are.
#include "enclosure/chip.h"

#include "enclosure/numbers.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace enclosure {

namespace {

void put_text(std::vector<std::uint8_t>& to, std::size_t at, std::size_t length,
              std::string_view text) {
    std::fill_n(to.begin() + static_cast<std::ptrdiff_t>(at), length,
                static_cast<std::uint8_t>(' '));
    std::copy_n(text.begin(), std::min(length, text.size()),
                to.begin() + static_cast<std::ptrdiff_t>(at));
}

void cut(std::vector<std::uint8_t>& data, std::uint64_t length) {
    data.resize(static_cast<std::size_t>(std::min<std::uint64_t>(data.size(), length)));
}

} // namespace

std::string inquiry_product(const std::string& product) {
    return " " + product;
}

// The volume is the only unit, and no well-known one is there.
scsi_reply chip::report_luns(byte_view cdb) {
    constexpr std::uint64_t smallest_room = 16;
    constexpr std::uint8_t well_known_units = 0x01;
    constexpr std::uint8_t all_units = 0x02;
    const std::uint64_t room = get_be(&cdb[6], 4);
    if (cdb[2] > all_units || room < smallest_room) {
        return refused(sense::invalid_field);
    }
    constexpr std::uint8_t entry = 8; // bytes
    std::vector<std::uint8_t> data(8);
    if (cdb[2] != well_known_units) {
        data[3] = entry;
        data.resize(data.size() + entry); // unit 0
    }
    cut(data, room);
    return answered(std::move(data));
}

scsi_reply chip::inquiry(byte_view cdb) const {
    constexpr std::size_t standard_length = 36;
    if (cdb[1] != 0 || cdb[2] != 0) { // vital product data pages
        return refused(sense::invalid_field);
    }
    std::vector<std::uint8_t> data(standard_length);
    data[2] = 0x05; // version: SPC-3
    data[3] = 0x02; // response data format
    data[4] = standard_length - 5;
    put_text(data, 8, 8, inquiry_vendor);
    put_text(data, 16, 16, inquiry_product(product_));
    put_text(data, 32, 4, "1.0");
    cut(data, get_be(&cdb[3], 2));
    return answered(std::move(data));
}

scsi_reply chip::test_ready() const {
    if (volume_.state == volume_state::no_disk) {
        return refused(sense::no_medium);
    }
    return volume_.sectors == 0 ? refused(sense::not_ready) : answered({});
}

scsi_reply chip::request_sense(byte_view cdb) const {
    std::vector<std::uint8_t> data = sense_bytes(last_sense_);
    cut(data, cdb[4]);
    return answered(std::move(data));
}

scsi_reply chip::read_capacity_10() const {
    constexpr std::uint64_t most = 0xFFFFFFFF; // "ask for 16 bytes"
    scsi_reply ready = test_ready();
    if (ready.status != scsi_status::good) {
        return ready;
    }
    std::vector<std::uint8_t> data(8);
    put_be(data.data(), std::min(volume_.sectors - 1, most), 4);
    put_be(&data[4], sector_size, 4);
    return answered(std::move(data));
}

scsi_reply chip::read_capacity_16(byte_view cdb) const {
    constexpr std::uint8_t read_capacity_action = 0x10;
    if ((cdb[1] & 0x1F) != read_capacity_action) {
        return refused(sense::invalid_field);
    }
    scsi_reply ready = test_ready();
    if (ready.status != scsi_status::good) {
        return ready;
    }
    std::vector<std::uint8_t> data(32);
    put_be(data.data(), volume_.sectors - 1, 8);
    put_be(&data[8], sector_size, 4);
    cut(data, get_be(&cdb[10], 4));
    return answered(std::move(data));
}

} // namespace enclosure
