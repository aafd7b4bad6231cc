// SCSI generic nodes that lead to the enclosures in this process.
#pragma once

#include "enclosure/in_process_bench.h"
#include "enclosure/sg_nodes.h"

#include <cstdint>
#include <map>
#include <mutex>

// Makes and removes nodes as the kernel does when bridges come and go: the lowest free minor
// number, the next number of arrival. Any thread.
class emulated_sg final : public enclosure::sg_nodes {
public:
    // `bench` outlives it and has nothing on its bus yet.
    explicit emulated_sg(enclosure::in_process_bench& bench);

    enclosure::sg_node_list chosen() override;
    enclosure::opened_node open(const enclosure::sg_node& node) override;
    int command(const enclosure::file_handle& node, sg_io_hdr& request) override;
    void pause() override {}

    // The node of a bridge on the bus; number 0 when it has none.
    enclosure::sg_node node_of(std::uint32_t bridge);

private:
    void arrive(std::uint32_t bridge);

    enclosure::in_process_bench& bench_;
    std::mutex mutex_;
    std::map<std::uint32_t, enclosure::sg_node> nodes_; // by the bridge's handle
    std::map<int, std::uint32_t> files_;                // bridges by open file
    std::uint64_t last_arrival_ = 0;
};
