#include "enclosure/sg_exchange.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <utility>

namespace enclosure {

namespace {

// How the kernel says that a command did not get through (its include/scsi/scsi_status.h).
enum host_status : unsigned short {
    host_ok = 0x00,
    host_no_connection = 0x01,
    host_timed_out = 0x03,
    host_aborted = 0x05, // as some drivers have it when the time was over
};
constexpr unsigned driver_timed_out = 0x06; // the low four bits of the driver's status

bool is_time_over(const sg_io_hdr& request) {
    return request.host_status == host_timed_out || request.host_status == host_aborted ||
           (request.driver_status & 0x0FU) == driver_timed_out;
}

// What kept the command from an answer; nothing when there is one.
std::optional<delivery> trouble_of(int error, const sg_io_hdr& request) {
    if (error == EACCES || error == EPERM) {
        return delivery::not_permitted;
    }
    if (error == ENODEV || error == ENXIO || request.host_status == host_no_connection) {
        return delivery::gone;
    }
    if (is_time_over(request)) {
        return delivery::no_answer;
    }
    const bool answered = error == 0 && request.host_status == host_ok;
    return answered ? std::nullopt : std::optional(delivery::disturbed);
}

sg_io_hdr request_for(std::array<std::uint8_t, longest_cdb>& cdb, std::size_t cdb_size,
                      std::array<std::uint8_t, longest_sense>& sense, std::chrono::seconds limit) {
    sg_io_hdr request{};
    request.interface_id = 'S';
    request.cmdp = cdb.data();
    request.cmd_len = static_cast<unsigned char>(cdb_size);
    request.sbp = sense.data();
    request.mx_sb_len = static_cast<unsigned char>(sense.size());
    request.timeout = static_cast<unsigned>(std::chrono::milliseconds(limit).count());
    return request;
}

void attach(std::vector<std::uint8_t>& data, int direction, sg_io_hdr& request) {
    request.dxfer_direction = data.empty() ? SG_DXFER_NONE : direction;
    request.dxferp = data.data();
    request.dxfer_len = static_cast<unsigned>(data.size());
}

// What went its way of `wanted` bytes.
std::size_t moved(std::size_t wanted, int residue) {
    const std::size_t missing = static_cast<std::size_t>(std::max(residue, 0));
    return wanted - std::min(wanted, missing);
}

exchange made_once(sg_nodes& nodes, const file_handle& node, byte_view cdb, byte_view data_out,
                   std::uint32_t allocation, std::chrono::seconds limit) {
    std::array<std::uint8_t, longest_cdb> command{};
    std::array<std::uint8_t, longest_sense> sense{};
    const std::size_t length = std::min(cdb.size(), command.size());
    std::copy_n(cdb.begin(), length, command.begin());
    std::vector<std::uint8_t> out(data_out.begin(), data_out.end());
    std::vector<std::uint8_t> in(out.empty() ? allocation : 0);
    sg_io_hdr request = request_for(command, length, sense, limit);
    if (out.empty()) {
        attach(in, SG_DXFER_FROM_DEV, request);
    } else {
        attach(out, SG_DXFER_TO_DEV, request);
    }
    const int error = nodes.command(node, request);
    if (const auto trouble = trouble_of(error, request)) {
        return {*trouble, {}};
    }
    scsi_reply reply;
    reply.status = static_cast<scsi_status>(request.status);
    reply.sense.assign(sense.begin(),
                       sense.begin() + std::min<std::ptrdiff_t>(request.sb_len_wr, longest_sense));
    in.erase(in.begin() + static_cast<std::ptrdiff_t>(moved(in.size(), request.resid)), in.end());
    reply.data_in = std::move(in);
    return {delivery::answered, std::move(reply), moved(out.size(), request.resid) < out.size()};
}

// The device refused since something has happened to it, and carried nothing out.
bool has_news(const exchange& made) {
    constexpr std::uint8_t unit_attention = 0x06;
    return made.state == delivery::answered && made.reply.status == scsi_status::check_condition &&
           decode_sense(made.reply.sense).key == unit_attention;
}

bool becomes_ready(const exchange& made) {
    constexpr sense_code becoming_ready{0x02, 0x04, 0x01};
    return made.state == delivery::answered && made.reply.status == scsi_status::check_condition &&
           decode_sense(made.reply.sense) == becoming_ready;
}

// How often a command may still be made again, for each of the reasons in turn.
struct chances {
    int news = 8;                                     // a device has a few at once
    std::int64_t waits = sg_answer_limit.count() * 4; // of a quarter of a second
    int losses = 0;                                   // by the bus
};

// Whether the command is to be made again. Waits first where that helps.
bool is_made_again(const exchange& made, chances& left, sg_nodes& nodes) {
    if (has_news(made)) {
        return left.news-- > 0;
    }
    const bool helped_by_time = (becomes_ready(made) && left.waits-- > 0) ||
                                (made.state == delivery::disturbed && left.losses-- > 0);
    if (helped_by_time) {
        nodes.pause();
    }
    return helped_by_time;
}

} // namespace

exchange sg_exchange(sg_nodes& nodes, const file_handle& node, byte_view cdb, byte_view data_out,
                     std::uint32_t allocation, std::chrono::seconds limit) {
    const bool only_reads = data_out.empty() && allocation > 0;
    chances left;
    left.losses = only_reads ? 1 : 0;
    exchange made = made_once(nodes, node, cdb, data_out, allocation, limit);
    while (is_made_again(made, left, nodes)) {
        const bool answered = made.state == delivery::answered;
        made =
            made_once(nodes, node, cdb, data_out, allocation, answered ? sg_answer_limit : limit);
    }
    return made;
}

} // namespace enclosure
