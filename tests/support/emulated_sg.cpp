#include "tests/support/emulated_sg.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <utility>

using enclosure::byte_view;
using enclosure::delivery;
using enclosure::exchange;
using enclosure::opened_node;
using enclosure::sg_node;

namespace {

byte_view sent_with(const sg_io_hdr& request) {
    return request.dxfer_direction == SG_DXFER_TO_DEV
               ? byte_view(static_cast<const std::uint8_t*>(request.dxferp), request.dxfer_len)
               : byte_view();
}

// As the kernel tells of an answer.
void fill_in(const enclosure::scsi_reply& reply, sg_io_hdr& request) {
    request.status = static_cast<unsigned char>(reply.status);
    const std::size_t sense = std::min<std::size_t>(reply.sense.size(), request.mx_sb_len);
    std::copy_n(reply.sense.begin(), sense, request.sbp);
    request.sb_len_wr = static_cast<unsigned char>(sense);
    if (request.dxfer_direction == SG_DXFER_FROM_DEV) {
        std::copy(reply.data_in.begin(), reply.data_in.end(),
                  static_cast<std::uint8_t*>(request.dxferp));
        request.resid = static_cast<int>(request.dxfer_len - reply.data_in.size());
    }
}

} // namespace

emulated_sg::emulated_sg(enclosure::in_process_bench& bench) : bench_(bench) {
    bench_.on_bus_event([this](const enclosure::in_process_bench::bus_event& event) {
        const std::lock_guard lock(mutex_);
        if (event.arrived) {
            arrive(event.subject.handle);
        } else {
            nodes_.erase(event.subject.handle);
        }
    });
}

void emulated_sg::arrive(std::uint32_t bridge) {
    sg_node node{0, ++last_arrival_};
    const auto has_minor = [&node](const auto& other) { return other.second.minor == node.minor; };
    while (std::any_of(nodes_.begin(), nodes_.end(), has_minor)) {
        ++node.minor;
    }
    nodes_[bridge] = node;
}

sg_node emulated_sg::node_of(std::uint32_t bridge) {
    const std::lock_guard lock(mutex_);
    const auto found = nodes_.find(bridge);
    return found == nodes_.end() ? sg_node{} : found->second;
}

enclosure::sg_node_list emulated_sg::chosen() {
    const std::lock_guard lock(mutex_);
    std::vector<sg_node> nodes;
    for (const auto& [bridge, node] : nodes_) {
        nodes.push_back(node);
    }
    std::sort(nodes.begin(), nodes.end(),
              [](const sg_node& a, const sg_node& b) { return a.arrival < b.arrival; });
    return {std::move(nodes), true};
}

opened_node emulated_sg::open(const sg_node& node) {
    const std::lock_guard lock(mutex_);
    for (const auto& [bridge, present] : nodes_) {
        if (present == node) {
            opened_node opened{enclosure::file_handle(::open("/dev/null", O_RDWR | O_CLOEXEC)), 0};
            files_[opened.file.get()] = bridge;
            return opened;
        }
    }
    return {{}, ENODEV};
}

int emulated_sg::command(const enclosure::file_handle& node, sg_io_hdr& request) {
    std::uint32_t bridge = 0;
    {
        const std::lock_guard lock(mutex_);
        bridge = files_.at(node.get());
    }
    const exchange made = bench_.execute(bridge, byte_view(request.cmdp, request.cmd_len),
                                         sent_with(request), request.dxfer_len);
    if (made.state == delivery::gone) {
        return ENODEV;
    }
    if (made.state == delivery::no_answer) {
        constexpr unsigned short timed_out = 0x03;
        request.host_status = timed_out;
        return 0;
    }
    fill_in(made.reply, request);
    return 0;
}
