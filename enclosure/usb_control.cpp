#include "enclosure/usb_control.h"

#include "enclosure/numbers.h"

#include <algorithm>

namespace enclosure::usb {

namespace {

using bytes = std::vector<std::uint8_t>;

// Kind of request (direction, standard or class, recipient), then its number.
constexpr std::uint16_t kind(std::uint8_t type, std::uint8_t number) {
    return static_cast<std::uint16_t>(type << 8 | number);
}

constexpr std::uint16_t get_device_status = kind(0x80, 0x00);
constexpr std::uint16_t get_interface_status = kind(0x81, 0x00);
constexpr std::uint16_t get_endpoint_status = kind(0x82, 0x00);
constexpr std::uint16_t clear_endpoint_feature = kind(0x02, 0x01);
constexpr std::uint16_t set_endpoint_feature = kind(0x02, 0x03);
constexpr std::uint16_t set_address = kind(0x00, 0x05);
constexpr std::uint16_t get_descriptor = kind(0x80, 0x06);
constexpr std::uint16_t get_configuration = kind(0x80, 0x08);
constexpr std::uint16_t set_configuration_request = kind(0x00, 0x09);
constexpr std::uint16_t get_interface = kind(0x81, 0x0A);
constexpr std::uint16_t set_interface = kind(0x01, 0x0B);
constexpr std::uint16_t get_last_unit = kind(0xA1, 0xFE);
constexpr std::uint16_t reset_storage = kind(0x21, 0xFF);

constexpr std::uint16_t halt_feature = 0;
constexpr std::uint8_t own_power = 1;

std::optional<pipe> pipe_at(std::uint16_t address) {
    if (address == (in_bit | in_endpoint)) {
        return pipe::in;
    }
    return address == out_endpoint ? std::optional(pipe::out) : std::nullopt;
}

bool is_control_endpoint(std::uint16_t address) {
    return (address & ~in_bit) == control_endpoint;
}

} // namespace

struct control::request {
    explicit request(const setup_packet& setup)
        : what(kind(setup[0], setup[1])),
          value(static_cast<std::uint16_t>(get_le(&setup[2], 2))),
          index(static_cast<std::uint16_t>(get_le(&setup[4], 2))),
          length(static_cast<std::uint16_t>(get_le(&setup[6], 2))) {}

    std::uint16_t what;
    std::uint16_t value;
    std::uint16_t index;
    std::uint16_t length;
};

std::optional<bytes> control::answer(const setup_packet& setup) {
    const request asked(setup);
    if (!asks_for_data(setup)) {
        const bool done = asked.length == 0 && carry_out(asked);
        return done ? std::optional(bytes()) : std::nullopt;
    }
    std::optional<bytes> data = data_for(asked);
    if (data && data->size() > asked.length) {
        data->resize(asked.length);
    }
    return data;
}

std::optional<bytes> control::data_for(const request& asked) {
    switch (asked.what) {
    case get_descriptor:
        return descriptor(identity_, static_cast<std::uint8_t>(asked.value >> 8),
                          static_cast<std::uint8_t>(asked.value), asked.index);
    case get_device_status:
        return bytes{own_power, 0};
    case get_interface_status:
        return asked.index == 0 ? std::optional(bytes{0, 0}) : std::nullopt;
    case get_endpoint_status:
        return status_of(asked.index);
    case get_configuration:
        return bytes{configuration_};
    case get_interface:
    case get_last_unit:
        return asked.index == 0 ? std::optional(bytes{0}) : std::nullopt;
    default:
        return std::nullopt;
    }
}

bool control::carry_out(const request& asked) {
    switch (asked.what) {
    case set_address: // the host's own matter here
        return true;
    case set_configuration_request:
        return set_configuration(asked.value);
    case set_interface:
        if (asked.value != 0 || asked.index != 0) {
            return false;
        }
        storage_.begin_anew();
        return true;
    case clear_endpoint_feature:
        return change_halt(asked, false);
    case set_endpoint_feature:
        return change_halt(asked, true);
    case reset_storage:
        if (asked.value != 0 || asked.index != 0) {
            return false;
        }
        storage_.reset();
        return true;
    default:
        return false;
    }
}

std::optional<bytes> control::status_of(std::uint16_t endpoint) const {
    if (is_control_endpoint(endpoint)) {
        return bytes{0, 0};
    }
    const std::optional<pipe> which = pipe_at(endpoint);
    if (!which) {
        return std::nullopt;
    }
    return bytes{storage_.halted(*which) ? std::uint8_t{1} : std::uint8_t{0}, 0};
}

bool control::set_configuration(std::uint16_t value) {
    if (value != 0 && value != configuration_value) {
        return false;
    }
    configuration_ = static_cast<std::uint8_t>(value);
    storage_.begin_anew();
    return true;
}

bool control::change_halt(const request& asked, bool halt) {
    const std::optional<pipe> which = pipe_at(asked.index);
    if (asked.value != halt_feature || !which) {
        return asked.value == halt_feature && !halt && is_control_endpoint(asked.index);
    }
    if (halt) {
        storage_.halt(*which);
    } else {
        storage_.clear_halt(*which);
    }
    return true;
}

} // namespace enclosure::usb
