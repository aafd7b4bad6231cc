// The SCSI generic nodes of a machine, as the library needs them.
#pragma once

#include "enclosure/file_handle.h"

#include <scsi/sg.h>

#include <cstdint>
#include <vector>

namespace enclosure {

// A node that leads to a bridge.
struct sg_node {
    std::uint32_t minor = 0;
    std::uint64_t arrival = 0; // higher than those of nodes that came before; never 0

    bool operator==(const sg_node&) const = default;
};

struct sg_node_list {
    std::vector<sg_node> nodes; // in the order of their arrival
    bool complete = true;       // false: the system could not be asked, there may be more
};

// An open node, or why there is none.
struct opened_node {
    file_handle file;
    int error = 0; // as errno has it, when there is no file
};

// One thread at a time. Nothing is printed and nothing thrown: what cannot be done is in the
// results.
class sg_nodes {
public:
    sg_nodes() = default;
    virtual ~sg_nodes() = default;
    sg_nodes(const sg_nodes&) = delete;
    sg_nodes& operator=(const sg_nodes&) = delete;

    // The nodes that the udev rule has chosen.
    virtual sg_node_list chosen() = 0;

    // Opens a node for commands; ENODEV when it is not the arrival that was asked for.
    virtual opened_node open(const sg_node& node) = 0;

    // Makes the request of sg(4) and waits until it is over, for as long as its time-out allows.
    // 0, or as errno has it.
    virtual int command(const file_handle& node, sg_io_hdr& request) = 0;

    // Lets a quarter of a second pass, in which a device may become ready.
    virtual void pause() = 0;
};

} // namespace enclosure
