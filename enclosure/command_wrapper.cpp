#include "enclosure/command_wrapper.h"

#include "enclosure/numbers.h"

namespace enclosure::usb {

namespace {

constexpr std::uint32_t command_signature = 0x43425355; // "USBC"
constexpr std::uint32_t status_signature = 0x53425355;  // "USBS"

constexpr std::size_t signature_at = 0;
constexpr std::size_t tag_at = 4;
constexpr std::size_t length_at = 8;
constexpr std::size_t flags_at = 12;
constexpr std::size_t unit_at = 13;
constexpr std::size_t cdb_length_at = 14;
constexpr std::size_t cdb_at = 15;

constexpr std::uint8_t in_flag = 0x80;

bool is_meaningful(byte_view from) {
    const bool reserved_clear = (from[flags_at] & ~in_flag) == 0;
    const std::size_t cdb_length = from[cdb_length_at];
    return reserved_clear && from[unit_at] == 0 && cdb_length >= 1 && cdb_length <= longest_cdb;
}

} // namespace

std::optional<command_wrapper> decode_command_wrapper(byte_view from) {
    if (from.size() != command_wrapper_size ||
        get_le(&from[signature_at], 4) != command_signature || !is_meaningful(from)) {
        return std::nullopt;
    }
    const byte_view cdb = from.subspan(cdb_at, from[cdb_length_at]);
    return command_wrapper{static_cast<std::uint32_t>(get_le(&from[tag_at], 4)),
                           static_cast<std::uint32_t>(get_le(&from[length_at], 4)),
                           (from[flags_at] & in_flag) != 0,
                           {cdb.begin(), cdb.end()}};
}

std::array<std::uint8_t, status_wrapper_size>
encode_status_wrapper(std::uint32_t tag, std::uint32_t residue, command_status status) {
    std::array<std::uint8_t, status_wrapper_size> wrapper{};
    put_le(wrapper.data(), status_signature, 4);
    put_le(&wrapper[4], tag, 4);
    put_le(&wrapper[8], residue, 4);
    wrapper[12] = static_cast<std::uint8_t>(status);
    return wrapper;
}

} // namespace enclosure::usb
