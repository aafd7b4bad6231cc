// SCSI generic nodes that do what a test says.
#pragma once

#include "enclosure/sg_nodes.h"

#include <fcntl.h>

#include <cerrno>
#include <cstdint>
#include <functional>
#include <map>
#include <vector>

class scripted_sg final : public enclosure::sg_nodes {
public:
    // The outcome of a command: 0 or an error, with the rest in the request.
    using outcome = std::function<int(sg_io_hdr& request)>;

    std::vector<enclosure::sg_node> there;
    bool can_be_asked = true;                    // what is there
    std::map<std::uint32_t, int> errors_of_open; // by minor number
    outcome on_command = [](sg_io_hdr&) { return 0; };
    int opened = 0; // how often
    int pauses = 0;
    std::vector<std::vector<std::uint8_t>> commands;

    enclosure::sg_node_list chosen() override {
        return can_be_asked ? enclosure::sg_node_list{there, true}
                            : enclosure::sg_node_list{{}, false};
    }

    enclosure::opened_node open(const enclosure::sg_node& node) override {
        ++opened;
        if (const auto error = errors_of_open.find(node.minor); error != errors_of_open.end()) {
            return {{}, error->second};
        }
        return {enclosure::file_handle(::open("/dev/null", O_RDWR | O_CLOEXEC)), 0};
    }

    int command(const enclosure::file_handle&, sg_io_hdr& request) override {
        commands.emplace_back(request.cmdp, request.cmdp + request.cmd_len);
        return on_command(request);
    }

    void pause() override { ++pauses; }

    // An answer with check condition and that sense data.
    static outcome refusing(std::vector<std::uint8_t> sense) {
        return [sense = std::move(sense)](sg_io_hdr& request) {
            request.status = 0x02;
            std::copy(sense.begin(), sense.end(), request.sbp);
            request.sb_len_wr = static_cast<unsigned char>(sense.size());
            return 0;
        };
    }
};
