// Requests on an enclosure's control endpoint.
#pragma once

#include "enclosure/bulk_only.h"
#include "enclosure/usb_descriptors.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace enclosure::usb {

using setup_packet = std::array<std::uint8_t, 8>;

// True when the request's data go to the host.
constexpr bool asks_for_data(const setup_packet& setup) {
    return (setup[0] & in_bit) != 0;
}

// One thread at a time. Any bytes are safe.
class control {
public:
    // `storage` outlives it.
    control(identity of, bulk_only& storage) : identity_(std::move(of)), storage_(storage) {}

    // The data for the host, at most as long as it asked for; nothing: the request is stalled.
    // No request that takes data from the host is known.
    std::optional<std::vector<std::uint8_t>> answer(const setup_packet& setup);

private:
    struct request;

    std::optional<std::vector<std::uint8_t>> data_for(const request& asked);
    bool carry_out(const request& asked);
    std::optional<std::vector<std::uint8_t>> status_of(std::uint16_t endpoint) const;
    bool set_configuration(std::uint16_t value);
    bool change_halt(const request& asked, bool halt);

    identity identity_;
    bulk_only& storage_;
    std::uint8_t configuration_ = 0; // chosen one; 0: none
};

} // namespace enclosure::usb
