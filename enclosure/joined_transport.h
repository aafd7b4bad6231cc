// Two ways as one.
#pragma once

#include "enclosure/transport.h"

namespace enclosure {

// Real bridges, whose handles have the mark of sg_handle.h, go one way, all others the other.
class joined_transport final : public transport {
public:
    // Both outlive it.
    joined_transport(transport& emulated, transport& real) : emulated_(emulated), real_(real) {}

    // The emulated ones first.
    bridge_listing bridges() override;
    delivery open(std::uint32_t handle) override { return way_to(handle).open(handle); }
    void close(std::uint32_t handle) override { way_to(handle).close(handle); }
    exchange execute(std::uint32_t handle, byte_view cdb, byte_view data_out,
                     std::uint32_t allocation) override {
        return way_to(handle).execute(handle, cdb, data_out, allocation);
    }

private:
    transport& way_to(std::uint32_t handle);

    transport& emulated_;
    transport& real_;
};

} // namespace enclosure
