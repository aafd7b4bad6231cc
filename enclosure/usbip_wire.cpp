#include "enclosure/usbip_wire.h"

#include "enclosure/numbers.h"
#include "enclosure/usb_descriptors.h"

#include <algorithm>

namespace enclosure::usbip {

namespace {

constexpr std::uint16_t list_code = 0x0005;
constexpr std::uint16_t import_code = 0x0003;

constexpr std::size_t path_size = 256;
constexpr std::size_t device_size = 312;
constexpr std::size_t interface_size = 4;

constexpr std::uint32_t high_speed = 3;

// Text in its field, which ends with at least one zero byte.
void put_text(bytes& to, std::size_t at, const std::string& text, std::size_t field) {
    std::copy_n(text.begin(), std::min(text.size(), field - 1),
                to.begin() + static_cast<std::ptrdiff_t>(at));
}

void put_number(bytes& to, std::size_t at, std::uint64_t value, std::size_t width) {
    put_be(&to.at(at), value, width);
}

bytes reply_header(std::uint16_t code, reply_status status) {
    bytes header(request_size);
    put_number(header, 0, protocol_version, 2);
    put_number(header, 2, code, 2);
    put_number(header, 4, static_cast<std::uint32_t>(status), 4);
    return header;
}

bytes encode_device(const device& what) {
    bytes entry(device_size);
    put_text(entry, 0, what.path, path_size);
    put_text(entry, 256, what.busid, busid_size);
    put_number(entry, 288, what.bus_number, 4);
    put_number(entry, 292, what.device_number, 4);
    put_number(entry, 296, high_speed, 4);
    put_number(entry, 300, what.vendor_id, 2);
    put_number(entry, 302, what.product_id, 2);
    put_number(entry, 304, usb::device_version, 2);
    // Bytes 306 to 308: class, subclass and protocol are the interface's.
    entry.at(309) = usb::configuration_value;
    entry.at(310) = 1; // configurations
    entry.at(311) = 1; // interfaces
    return entry;
}

bytes encode_interface() {
    bytes entry(interface_size);
    entry.at(0) = usb::mass_storage_class;
    entry.at(1) = usb::scsi_subclass;
    entry.at(2) = usb::bulk_only_protocol;
    return entry;
}

void append(bytes& to, const bytes& more) {
    to.insert(to.end(), more.begin(), more.end());
}

} // namespace

request decode_request(byte_view from) {
    return {static_cast<std::uint16_t>(get_be(&from[0], 2)),
            static_cast<std::uint16_t>(get_be(&from[2], 2))};
}

std::string decode_busid(byte_view from) {
    return {from.begin(), std::find(from.begin(), from.end(), std::uint8_t{0})};
}

command decode_command(byte_view from) {
    const auto number_at = [&](std::size_t at) {
        return static_cast<std::uint32_t>(get_be(&from[at], 4));
    };
    command got;
    got.code = number_at(0);
    got.number = number_at(4);
    got.device = number_at(8);
    got.way = number_at(12);
    got.endpoint = number_at(16);
    if (got.code == unlink_command) {
        got.unlinked = number_at(20);
        return got;
    }
    got.length = number_at(24);
    got.packets = number_at(32);
    std::copy_n(from.begin() + 40, got.setup.size(), got.setup.begin());
    return got;
}

bytes list_reply(const std::vector<device>& devices) {
    bytes reply = reply_header(list_code, reply_status::done);
    reply.resize(reply.size() + 4);
    put_number(reply, request_size, devices.size(), 4);
    for (const device& what : devices) {
        append(reply, encode_device(what));
        append(reply, encode_interface());
    }
    return reply;
}

bytes import_reply(const device& imported) {
    bytes reply = reply_header(import_code, reply_status::done);
    append(reply, encode_device(imported));
    return reply;
}

bytes import_refusal(reply_status why) {
    return reply_header(import_code, why);
}

bytes encode_submit_reply(std::uint32_t number, std::int32_t status, std::uint32_t actual_length) {
    bytes reply(command_size);
    put_number(reply, 0, submit_reply, 4);
    put_number(reply, 4, number, 4);
    put_number(reply, 20, static_cast<std::uint32_t>(status), 4);
    put_number(reply, 24, actual_length, 4);
    put_number(reply, 32, no_packets, 4);
    return reply;
}

bytes encode_unlink_reply(std::uint32_t number, std::int32_t status) {
    bytes reply(command_size);
    put_number(reply, 0, unlink_reply, 4);
    put_number(reply, 4, number, 4);
    put_number(reply, 20, static_cast<std::uint32_t>(status), 4);
    return reply;
}

} // namespace enclosure::usbip
