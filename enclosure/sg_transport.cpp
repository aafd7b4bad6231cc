#include "enclosure/sg_transport.h"

#include "enclosure/sg_exchange.h"
#include "enclosure/sg_handle.h"
#include "enclosure/vendor_commands.h"

#include <cerrno>
#include <utility>

namespace enclosure {

namespace {

delivery delivery_of(int error) {
    switch (error) {
    case EACCES:
    case EPERM:
        return delivery::not_permitted;
    case ENODEV:
    case ENXIO:
    case ENOENT:
        return delivery::gone;
    default: // somebody has it for himself (EBUSY), or the system lacks something
        return delivery::no_answer;
    }
}

} // namespace

bridge_listing sg_transport::bridges() {
    std::vector<std::uint32_t> handles;
    std::set<std::uint32_t> there;
    const sg_node_list chosen = nodes_.chosen();
    for (const sg_node& node : chosen.nodes) {
        there.insert(sg_handle_of(node));
        if (can_be_used(node)) {
            handles.push_back(sg_handle_of(node));
        }
    }
    if (chosen.complete) {
        std::erase_if(tried_, [&there](const auto& one) { return !there.contains(one.first); });
        std::erase_if(silent_, [&there](std::uint32_t one) { return !there.contains(one); });
    }
    return {std::move(handles), chosen.complete};
}

// Rights may come and go; what a device is does not change.
bool sg_transport::can_be_used(const sg_node& node) {
    const std::uint32_t handle = sg_handle_of(node);
    if (opened_.contains(handle)) {
        return true;
    }
    const opened_node opened = nodes_.open(node);
    if (!opened.file) {
        return false;
    }
    const auto known = tried_.find(handle);
    return known != tried_.end()
               ? known->second
               : tried_.emplace(handle, knows_our_commands(handle, opened.file)).first->second;
}

// A chip that does not answer now may do so later.
bool sg_transport::knows_our_commands(std::uint32_t handle, const file_handle& node) {
    constexpr std::uint32_t width = 4;
    const exchange made = made_through(
        node, handle, encode({vendor_action::read_register, 0, false, presence_register_0, width}),
        {}, width);
    return made.state != delivery::answered ||
           decode_sense(made.reply.sense) != sense::invalid_opcode;
}

delivery sg_transport::open(std::uint32_t handle) {
    const sg_node_list chosen = nodes_.chosen();
    for (const sg_node& node : chosen.nodes) {
        if (sg_handle_of(node) != handle) {
            continue;
        }
        opened_node opened = nodes_.open(node);
        if (!opened.file) {
            return delivery_of(opened.error);
        }
        opened_[handle] = std::move(opened.file);
        return delivery::answered;
    }
    return chosen.complete ? delivery::gone : delivery::no_answer;
}

void sg_transport::close(std::uint32_t handle) {
    opened_.erase(handle);
}

exchange sg_transport::execute(std::uint32_t handle, byte_view cdb, byte_view data_out,
                               std::uint32_t allocation) {
    const auto opened = opened_.find(handle);
    if (opened == opened_.end()) {
        return {delivery::gone, {}};
    }
    return made_through(opened->second, handle, cdb, data_out, allocation);
}

exchange sg_transport::made_through(const file_handle& node, std::uint32_t handle, byte_view cdb,
                                    byte_view data_out, std::uint32_t allocation) {
    const bool silent = silent_.contains(handle);
    exchange made = sg_exchange(nodes_, node, cdb, data_out, allocation,
                                silent ? sg_short_limit : sg_answer_limit);
    if (made.state == delivery::no_answer) {
        silent_.insert(handle);
    } else if (made.state == delivery::answered) {
        silent_.erase(handle);
    }
    return made;
}

} // namespace enclosure
