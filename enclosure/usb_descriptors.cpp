#include "enclosure/usb_descriptors.h"

#include "enclosure/numbers.h"

#include <string_view>

namespace enclosure::usb {

namespace {

using bytes = std::vector<std::uint8_t>;

enum descriptor_type : std::uint8_t {
    device_type = 1,
    configuration_type = 2,
    string_type = 3,
    interface_type = 4,
    endpoint_type = 5,
};

enum string_index : std::uint8_t { languages = 0, manufacturer = 1, product = 2, serial = 3 };

constexpr std::uint16_t english = 0x0409;

constexpr std::uint8_t low(std::uint16_t value) {
    return static_cast<std::uint8_t>(value);
}

constexpr std::uint8_t high(std::uint16_t value) {
    return static_cast<std::uint8_t>(value >> 8);
}

bytes device_descriptor(const identity& of) {
    constexpr std::uint16_t usb_version = 0x0200;
    constexpr std::uint8_t control_packet = 64;
    return {18,
            device_type,
            low(usb_version),
            high(usb_version),
            0, // class, subclass and protocol are the interface's
            0,
            0,
            control_packet,
            low(of.vendor_id),
            high(of.vendor_id),
            low(of.product_id),
            high(of.product_id),
            low(device_version),
            high(device_version),
            manufacturer,
            product,
            of.serial.empty() ? std::uint8_t{0} : std::uint8_t{serial},
            1}; // configurations
}

void add_endpoint(bytes& to, std::uint8_t address) {
    constexpr std::uint8_t bulk = 2;
    const bytes endpoint = {7, endpoint_type, address, bulk, low(bulk_packet), high(bulk_packet),
                            0};
    to.insert(to.end(), endpoint.begin(), endpoint.end());
}

// With the interface and both endpoints, as the host asks for them at once.
bytes configuration_descriptor() {
    constexpr std::uint8_t total = 9 + 9 + 2 * 7;
    constexpr std::uint8_t own_power = 0xC0;
    bytes all = {9, configuration_type, total, 0, 1, configuration_value, 0, own_power, 0};
    const bytes interface = {
        9, interface_type, 0, 0, 2, mass_storage_class, scsi_subclass, bulk_only_protocol, 0};
    all.insert(all.end(), interface.begin(), interface.end());
    add_endpoint(all, in_bit | in_endpoint);
    add_endpoint(all, out_endpoint);
    return all;
}

bytes string_descriptor(std::string_view text) {
    bytes all = {static_cast<std::uint8_t>(2 + 2 * text.size()), string_type};
    for (const char letter : text) {
        all.push_back(static_cast<std::uint8_t>(letter));
        all.push_back(0);
    }
    return all;
}

std::optional<bytes> string_number(const identity& of, std::uint8_t index, std::uint16_t language) {
    if (index == languages) {
        return bytes{4, string_type, low(english), high(english)};
    }
    if (language != english) {
        return std::nullopt;
    }
    if (index == manufacturer) {
        return string_descriptor(of.manufacturer);
    }
    if (index == product) {
        return string_descriptor(of.product);
    }
    const bool known = index == serial && !of.serial.empty();
    return known ? std::optional(string_descriptor(of.serial)) : std::nullopt;
}

} // namespace

std::optional<bytes> descriptor(const identity& of, std::uint8_t type, std::uint8_t index,
                                std::uint16_t language) {
    if (type == string_type) {
        return string_number(of, index, language);
    }
    if (type == device_type && index == 0) {
        return device_descriptor(of);
    }
    if (type == configuration_type && index == 0) {
        return configuration_descriptor();
    }
    return std::nullopt;
}

} // namespace enclosure::usb
