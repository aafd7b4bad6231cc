#include "enclosure/chip.h"

#include "enclosure/numbers.h"

#include <algorithm>

namespace enclosure {

namespace {

enum opcode : std::uint8_t {
    op_test_unit_ready = 0x00,
    op_request_sense = 0x03,
    op_inquiry = 0x12,
    op_read_capacity_10 = 0x25,
    op_synchronize_cache_10 = 0x35,
    op_service_action_in_16 = 0x9E,
};

// The length that the opcode's group prescribes; 0 for groups without one.
std::size_t cdb_length(std::uint8_t code) {
    switch (code >> 5) {
    case 0:
        return 6;
    case 1:
    case 2:
        return 10;
    case 4:
        return 16;
    case 5:
        return 12;
    case 6: // vendor
        return longest_cdb;
    default:
        return 0;
    }
}

bool is_known(std::uint8_t code) {
    return code == op_test_unit_ready || code == op_request_sense || code == op_inquiry ||
           code == op_read_capacity_10 || code == op_synchronize_cache_10 ||
           code == op_service_action_in_16 || code == vendor_opcode;
}

void put_text(std::vector<std::uint8_t>& to, std::size_t at, std::size_t length,
              std::string_view text) {
    std::fill_n(to.begin() + static_cast<std::ptrdiff_t>(at), length,
                static_cast<std::uint8_t>(' '));
    std::copy_n(text.begin(), std::min(length, text.size()),
                to.begin() + static_cast<std::ptrdiff_t>(at));
}

void cut(std::vector<std::uint8_t>& data, std::uint64_t length) {
    data.resize(static_cast<std::size_t>(std::min<std::uint64_t>(data.size(), length)));
}

} // namespace

std::string inquiry_product(const std::string& product) {
    return " " + product;
}

chip::chip(bays& disks, fault_stack& path, std::string product)
    : disks_(disks), path_(path), product_(std::move(product)), copy_(disks, path) {}

void chip::power_on(moment now, const std::optional<kept_copy>& before) {
    restart_ = false;
    last_sense_ = sense::none;
    copy_.forget();
    look_at_disks();
    copied_pair_ = pair_of(views_);
    const std::optional<copy_order> order = decide_copy(views_);
    if (before && goes_on(*before, order)) {
        copy_.begin(before->progress, now);
    } else if (order) {
        copy_.begin({order->source, order->sectors, 0}, now);
    }
}

bool chip::goes_on(const kept_copy& before, const std::optional<copy_order>& order) const {
    const copy_progress& progress = before.progress;
    const bool wanted = order
                            ? progress.source == order->source && progress.sectors == order->sectors
                            : progress.done == progress.sectors;
    return wanted && before.between == copied_pair_;
}

void chip::power_off() {
    copy_.stop();
}

void chip::disks_changed() {
    copy_.stop();
    look_at_disks();
    const std::optional<copy_order> order = decide_copy(views_);
    if (order && pair_of(views_) != copied_pair_) {
        copied_pair_ = pair_of(views_);
        copy_.expect(order->source, order->sectors);
    }
}

std::optional<kept_copy> chip::lasting_copy() const {
    if (!copy_.flush_target()) {
        return std::nullopt;
    }
    return kept_copy{*copy_.progress(), copied_pair_};
}

volume chip::presented() const {
    volume seen = volume_;
    const auto& progress = copy_.progress();
    if (seen.state == volume_state::copying && (!progress || progress->done == progress->sectors)) {
        seen.state = volume_state::in_order;
    }
    return seen;
}

bool chip::answers(int port) const {
    const std::shared_ptr<disk>& there = disks_.at(port);
    return there && there->answers();
}

std::optional<identify_block> chip::identity_at(int port) {
    identify_block block{};
    if (!path_.perform({io_kind::identify, port, 0, 0, block})) {
        return std::nullopt;
    }
    return block;
}

void chip::look_at_disks() {
    for (int port = 0; port < ports; ++port) {
        views_[static_cast<std::size_t>(port)] = look_at(port);
    }
    volume_ = decide_volume(views_);
}

port_view chip::look_at(int port) {
    const std::optional<identify_block> identity = identity_at(port);
    if (!identity || !identify_counts(*identity)) {
        return {};
    }
    port_view view{true, identify_sectors(*identity), identity_of(*identity), std::nullopt};
    const std::optional<std::uint64_t> address = record_address(view.sectors);
    sector_data sector{};
    if (address && path_.perform({io_kind::read, port, *address, 1, sector})) {
        view.record = read_record(sector);
    }
    return view;
}

scsi_reply chip::execute(byte_view cdb, byte_view data_out, std::uint32_t allocation) {
    path_.take_delay(); // what the chip's own requests met is nobody's answer
    scsi_reply reply = dispatch(cdb, data_out);
    reply.delay = path_.take_delay();
    cut(reply.data_in, allocation);
    return reply;
}

scsi_reply chip::dispatch(byte_view cdb, byte_view data_out) {
    scsi_reply reply;
    if (cdb.empty() || !is_known(cdb[0])) {
        reply = refused(sense::invalid_opcode);
    } else if (cdb.size() < cdb_length(cdb[0]) || cdb.size() > longest_cdb) {
        reply = refused(sense::invalid_field);
    } else if (cdb[0] == op_request_sense) {
        reply = request_sense(cdb);
    } else if (cdb[0] == op_inquiry) {
        reply = inquiry(cdb);
    } else if (cdb[0] == op_test_unit_ready) {
        reply = test_ready();
    } else if (cdb[0] == op_read_capacity_10) {
        reply = read_capacity_10();
    } else if (cdb[0] == op_service_action_in_16) {
        reply = read_capacity_16(cdb);
    } else if (cdb[0] == op_synchronize_cache_10) {
        reply = synchronize();
    } else {
        reply = vendor(cdb, data_out);
    }
    last_sense_ = sense::none;
    if (reply.status != scsi_status::good) {
        last_sense_ = {reply.sense[2], reply.sense[12], reply.sense[13]};
    }
    return reply;
}

scsi_reply chip::inquiry(byte_view cdb) const {
    constexpr std::size_t standard_length = 36;
    if (cdb[1] != 0 || cdb[2] != 0) { // vital product data pages
        return refused(sense::invalid_field);
    }
    std::vector<std::uint8_t> data(standard_length);
    data[2] = 0x05; // version: SPC-3
    data[3] = 0x02; // response data format
    data[4] = standard_length - 5;
    put_text(data, 8, 8, inquiry_vendor);
    put_text(data, 16, 16, inquiry_product(product_));
    put_text(data, 32, 4, "1.0");
    cut(data, get_be(&cdb[3], 2));
    return answered(std::move(data));
}

scsi_reply chip::test_ready() const {
    if (volume_.state == volume_state::no_disk) {
        return refused(sense::no_medium);
    }
    return volume_.sectors == 0 ? refused(sense::not_ready) : answered({});
}

scsi_reply chip::request_sense(byte_view cdb) const {
    std::vector<std::uint8_t> data = sense_bytes(last_sense_);
    cut(data, cdb[4]);
    return answered(std::move(data));
}

scsi_reply chip::read_capacity_10() const {
    constexpr std::uint64_t most = 0xFFFFFFFF; // "ask for 16 bytes"
    scsi_reply ready = test_ready();
    if (ready.status != scsi_status::good) {
        return ready;
    }
    std::vector<std::uint8_t> data(8);
    put_be(data.data(), std::min(volume_.sectors - 1, most), 4);
    put_be(&data[4], sector_size, 4);
    return answered(std::move(data));
}

scsi_reply chip::read_capacity_16(byte_view cdb) const {
    constexpr std::uint8_t read_capacity_action = 0x10;
    if ((cdb[1] & 0x1F) != read_capacity_action) {
        return refused(sense::invalid_field);
    }
    scsi_reply ready = test_ready();
    if (ready.status != scsi_status::good) {
        return ready;
    }
    std::vector<std::uint8_t> data(32);
    put_be(data.data(), volume_.sectors - 1, 8);
    put_be(&data[8], sector_size, 4);
    cut(data, get_be(&cdb[10], 4));
    return answered(std::move(data));
}

scsi_reply chip::synchronize() {
    bool done = true;
    for (int port = 0; port < ports; ++port) {
        done = (!answers(port) || path_.perform({io_kind::flush, port, 0, 0, {}})) && done;
    }
    return done ? answered({}) : refused(sense::write_failed);
}

} // namespace enclosure
