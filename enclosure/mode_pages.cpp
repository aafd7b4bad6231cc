#include "enclosure/mode_pages.h"

#include "enclosure/numbers.h"
#include "enclosure/opcodes.h"

#include <algorithm>
#include <array>
#include <vector>

namespace enclosure {

namespace {

constexpr std::uint8_t caching_page = 0x08;
constexpr std::uint8_t all_pages = 0x3F;
constexpr std::uint8_t all_subpages = 0xFF;
constexpr std::uint8_t accepts_dpo_and_fua = 0x10;

enum page_control : std::uint8_t { current, changeable, initial, saved };

std::array<std::uint8_t, 20> caching(std::uint8_t control) {
    std::array<std::uint8_t, 20> page{};
    page[0] = caching_page;
    page[1] = page.size() - 2;
    page[2] = control == changeable ? 0x00 : 0x04; // write cache in use
    return page;
}

// The header's first field counts what follows it.
std::vector<std::uint8_t> header_6(std::size_t pages) {
    return {static_cast<std::uint8_t>(3 + pages), 0, accepts_dpo_and_fua, 0};
}

std::vector<std::uint8_t> header_10(std::size_t pages) {
    return {0, static_cast<std::uint8_t>(6 + pages), 0, accepts_dpo_and_fua, 0, 0, 0, 0};
}

} // namespace

scsi_reply mode_sense(byte_view cdb) {
    const bool is_short = cdb[0] == op_mode_sense_6;
    const std::uint8_t control = cdb[2] >> 6;
    const std::uint8_t wanted = cdb[2] & 0x3F;
    if ((wanted != caching_page && wanted != all_pages) ||
        (cdb[3] != 0 && cdb[3] != all_subpages)) {
        return refused(sense::invalid_field);
    }
    if (control == saved) {
        return refused(sense::no_saved_values);
    }
    const std::array<std::uint8_t, 20> page = caching(control);
    std::vector<std::uint8_t> data = is_short ? header_6(page.size()) : header_10(page.size());
    data.insert(data.end(), page.begin(), page.end());
    const std::uint64_t room = is_short ? cdb[4] : get_be(&cdb[7], 2);
    data.resize(static_cast<std::size_t>(std::min<std::uint64_t>(data.size(), room)));
    return answered(std::move(data));
}

} // namespace enclosure
