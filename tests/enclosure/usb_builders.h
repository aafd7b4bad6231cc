// Packets of USB/IP and wrappers of bulk-only transport, written by hand.
#pragma once

#include "enclosure/scsi.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace usb_builders {

using bytes = std::vector<std::uint8_t>;

inline bytes joined(std::initializer_list<bytes> parts) {
    bytes all;
    for (const bytes& part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

inline bytes big(std::uint32_t value) {
    return {static_cast<std::uint8_t>(value >> 24), static_cast<std::uint8_t>(value >> 16),
            static_cast<std::uint8_t>(value >> 8), static_cast<std::uint8_t>(value)};
}

inline bytes little(std::uint32_t value) {
    bytes reversed = big(value);
    std::reverse(reversed.begin(), reversed.end());
    return reversed;
}

inline bytes part_of(const bytes& from, std::size_t at, std::size_t length) {
    bytes part;
    for (std::size_t i = at; i < at + length && i < from.size(); ++i) {
        part.push_back(from[i]);
    }
    return part;
}

inline bytes list_request() {
    return {0x01, 0x11, 0x80, 0x05, 0, 0, 0, 0};
}

// `busid` has at most 32 characters.
inline bytes import_request(const std::string& busid) {
    bytes packet = {0x01, 0x11, 0x80, 0x03, 0, 0, 0, 0};
    packet.resize(40);
    std::copy(busid.begin(), busid.end(), packet.begin() + 8);
    return packet;
}

struct submission {
    std::uint32_t number = 1;
    std::uint32_t device = 0x00010001;
    std::uint32_t way = 0; // 1: towards the host
    std::uint32_t endpoint = 0;
    std::uint32_t length = 0;
    bytes setup = bytes(8);
    bytes data = {};
    std::uint32_t packets = 0;
};

inline bytes submit(const submission& what) {
    return joined({big(1), big(what.number), big(what.device), big(what.way), big(what.endpoint),
                   big(0), big(what.length), big(0), big(what.packets), big(0), what.setup,
                   what.data});
}

inline bytes control_in(std::uint32_t number, const bytes& setup, std::uint32_t length) {
    return submit({number, 0x00010001, 1, 0, length, setup});
}

inline bytes bulk_out(std::uint32_t number, const bytes& data) {
    return submit(
        {number, 0x00010001, 0, 2, static_cast<std::uint32_t>(data.size()), bytes(8), data});
}

inline bytes bulk_in(std::uint32_t number, std::uint32_t length) {
    return submit({number, 0x00010001, 1, 1, length});
}

inline bytes unlink(std::uint32_t number, std::uint32_t unlinked) {
    bytes packet = joined({big(2), big(number), big(0x00010001), big(0), big(0), big(unlinked)});
    packet.resize(48);
    return packet;
}

// The header of the answer to a transfer.
inline bytes submit_reply(std::uint32_t number, std::int32_t status, std::uint32_t moved) {
    bytes packet = joined({big(3), big(number), big(0), big(0), big(0),
                           big(static_cast<std::uint32_t>(status)), big(moved)});
    packet.resize(48);
    return packet;
}

inline bytes unlink_reply(std::uint32_t number, std::int32_t status) {
    bytes packet = joined(
        {big(4), big(number), big(0), big(0), big(0), big(static_cast<std::uint32_t>(status))});
    packet.resize(48);
    return packet;
}

// A command wrapper; `in`: the host expects data.
inline bytes wrapped(std::uint32_t tag, std::uint32_t length, bool in, const bytes& cdb) {
    bytes packet = joined(
        {{'U', 'S', 'B', 'C'},
         little(tag),
         little(length),
         {in ? std::uint8_t{0x80} : std::uint8_t{0}, 0, static_cast<std::uint8_t>(cdb.size())},
         cdb});
    packet.resize(31);
    return packet;
}

inline bytes status_wrapper(std::uint32_t tag, std::uint32_t residue, std::uint8_t status) {
    return joined({{'U', 'S', 'B', 'S'}, little(tag), little(residue), {status}});
}

inline const bytes inquiry = {0x12, 0, 0, 0, 36, 0};
inline const bytes warm_boot = {0xC4, 0x06, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};

} // namespace usb_builders
