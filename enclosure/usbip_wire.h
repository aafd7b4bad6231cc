// The packets of USB/IP as bytes. docs/formats-enclosure.md describes them. Numbers on the wire
// are big-endian. Any thread; no errors but those named.
#pragma once

#include "enclosure/units.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace enclosure::usbip {

using bytes = std::vector<std::uint8_t>;

inline constexpr std::uint16_t usual_port = 3240; // TCP
inline constexpr std::uint16_t protocol_version = 0x0111;
inline constexpr std::uint16_t list_request = 0x8005;
inline constexpr std::uint16_t import_request = 0x8003;

inline constexpr std::size_t request_size = 8;  // a request's header, before what it asks for
inline constexpr std::size_t busid_size = 32;   // what an import asks for
inline constexpr std::size_t command_size = 48; // before the data that the host sends

enum class reply_status : std::uint32_t { done = 0, busy = 2, no_device = 4 };

enum command_code : std::uint32_t {
    submit_command = 1,
    unlink_command = 2,
    submit_reply = 3,
    unlink_reply = 4,
};

enum direction : std::uint32_t { direction_out = 0, direction_in = 1 };

// Numbers of packets of a transfer that is not isochronous; hosts send either.
inline constexpr std::uint32_t no_packets = 0;
inline constexpr std::uint32_t not_isochronous = 0xFFFFFFFF;

// What a finished transfer or an unlink says, as negative numbers of errno on Linux.
enum transfer_status : std::int32_t {
    transfer_done = 0,
    transfer_stalled = -32,   // EPIPE
    transfer_unlinked = -104, // ECONNRESET
};

struct request {
    std::uint16_t version = 0;
    std::uint16_t code = 0;
};

// A device as lists and imports describe it; what all devices here share is not in it.
struct device {
    std::string path;  // at most 255 characters, for people
    std::string busid; // at most 31
    std::uint32_t bus_number = 0;
    std::uint32_t device_number = 0;
    std::uint16_t vendor_id = 0;
    std::uint16_t product_id = 0;

    // As commands name it.
    std::uint32_t id() const { return bus_number << 16 | device_number; }
};

struct command {
    std::uint32_t code = 0;
    std::uint32_t number = 0; // of the sequence
    std::uint32_t device = 0;
    std::uint32_t way = 0; // a direction
    std::uint32_t endpoint = 0;

    // submit_command
    std::uint32_t length = 0; // of the host's buffer
    std::uint32_t packets = 0;
    std::array<std::uint8_t, 8> setup{};

    // unlink_command
    std::uint32_t unlinked = 0;
};

// `from` has request_size, busid_size and command_size bytes.
request decode_request(byte_view from);
std::string decode_busid(byte_view from); // up to the first zero byte
command decode_command(byte_view from);

bytes list_reply(const std::vector<device>& devices);
bytes import_reply(const device& imported);
bytes import_refusal(reply_status why);

// The header of the answer to the transfer `number`; data that came in follows it.
bytes encode_submit_reply(std::uint32_t number, std::int32_t status, std::uint32_t actual_length);
bytes encode_unlink_reply(std::uint32_t number, std::int32_t status);

} // namespace enclosure::usbip
