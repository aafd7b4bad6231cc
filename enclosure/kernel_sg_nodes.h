// The nodes that the running kernel has.
#pragma once

#include "enclosure/sg_nodes.h"

namespace enclosure {

class kernel_sg_nodes final : public sg_nodes {
public:
    sg_node_list chosen() override;
    opened_node open(const sg_node& node) override;
    int command(const file_handle& node, sg_io_hdr& request) override;
    void pause() override;
};

} // namespace enclosure
