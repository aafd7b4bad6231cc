// The way to real bridges: SG_IO on their SCSI generic nodes.
#pragma once

#include "enclosure/sg_nodes.h"
#include "enclosure/transport.h"

#include <map>
#include <set>

namespace enclosure {

// A node is listed once it could be opened and its device did not refuse the chip's own commands
// as unknown to it.
class sg_transport final : public transport {
public:
    // `nodes` outlives it.
    explicit sg_transport(sg_nodes& nodes) : nodes_(nodes) {}

    bridge_listing bridges() override;
    delivery open(std::uint32_t handle) override;
    void close(std::uint32_t handle) override;
    exchange execute(std::uint32_t handle, byte_view cdb, byte_view data_out,
                     std::uint32_t allocation) override;

private:
    bool can_be_used(const sg_node& node);
    bool knows_our_commands(std::uint32_t handle, const file_handle& node);

    // Notes whether the device was silent.
    exchange made_through(const file_handle& node, std::uint32_t handle, byte_view cdb,
                          byte_view data_out, std::uint32_t allocation);

    sg_nodes& nodes_;
    // All by handle; the last two while the node is there.
    std::map<std::uint32_t, file_handle> opened_;
    std::map<std::uint32_t, bool> tried_; // whether it is a bridge
    std::set<std::uint32_t> silent_;      // gave no answer in time, and none since
};

} // namespace enclosure
