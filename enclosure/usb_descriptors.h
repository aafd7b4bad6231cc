// How an enclosure describes itself on USB: high speed, one mass-storage interface. Any thread;
// no errors.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace enclosure::usb {

inline constexpr std::uint8_t mass_storage_class = 0x08;
inline constexpr std::uint8_t scsi_subclass = 0x06;
inline constexpr std::uint8_t bulk_only_protocol = 0x50;

inline constexpr std::uint16_t device_version = 0x0100; // in binary-coded decimal
inline constexpr std::uint8_t configuration_value = 1;

// Endpoints by number; the first sends to the host, the second takes from it.
inline constexpr std::uint8_t control_endpoint = 0;
inline constexpr std::uint8_t in_endpoint = 1;
inline constexpr std::uint8_t out_endpoint = 2;
inline constexpr std::uint8_t in_bit = 0x80; // with the number in an endpoint's address

inline constexpr std::size_t bulk_packet = 512; // bytes, the most of one packet

// What distinguishes one enclosure from another.
struct identity {
    std::uint16_t vendor_id = 0;
    std::uint16_t product_id = 0;
    std::string manufacturer; // ASCII, as all texts here; at most 126 characters
    std::string product;
    std::string serial; // empty: it has none
};

// The descriptor that GET_DESCRIPTOR asks for with `type` and `index` in its value and
// `language` in its index; nothing when there is none.
std::optional<std::vector<std::uint8_t>> descriptor(const identity& of, std::uint8_t type,
                                                    std::uint8_t index, std::uint16_t language);

} // namespace enclosure::usb
