#include "enclosure/chip.h"

#include "enclosure/mode_pages.h"
#include "enclosure/opcodes.h"
#include "enclosure/record_marks.h"

#include <algorithm>

namespace enclosure {

chip::chip(bays& disks, fault_stack& path, std::string product)
    : disks_(disks),
      path_(path),
      product_(std::move(product)),
      copy_(disks, path),
      volume_io_(path, copy_) {}

void chip::power_on(moment now, const std::optional<kept_copy>& before) {
    restart_ = false;
    last_sense_ = sense::none;
    unfilled_ = unfilled();
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

bool chip::advance(moment now) {
    const bool was_running = copy_.running();
    const bool more = copy_.advance(now);
    if (was_running && !copy_.running()) {
        settle_source();
    }
    return more;
}

// What was written to the source alone is on its target as well now, and lasting before the records
// say so.
void chip::settle_source() {
    const int source = copy_.progress()->source;
    port_view& view = views_[static_cast<std::size_t>(source)];
    if (!view.record || !written_alone(*view.record)) {
        return;
    }
    if (path_.perform({io_kind::flush, 1 - source, 0, 0, {}}) &&
        clear_alone_mark(path_, source, record_address(view.sectors).value_or(0))) {
        view.record->stamp.back() = 0;
        copied_pair_ = pair_of(views_);
    }
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

std::optional<raw_identity> chip::unfilled() const {
    const auto& progress = copy_.progress();
    if (!progress) {
        return unfilled_;
    }
    const auto target = static_cast<std::size_t>(1 - progress->source);
    return copy_.unfinished() ? std::optional(copied_pair_.members[target].disk) : std::nullopt;
}

void chip::forget_copy() {
    copy_.forget();
    unfilled_.reset();
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
    answer_old_mark();
    volume_ = decide_volume(views_);
    settle_unfilled();
    if (serves_unfilled()) {
        volume_.sectors = 0; // behind what was copied it has the rest of its old content
    }
    volume_io_.present(views_, volume_);
}

// A host takes a single mark for a copy that is to run, so the half that was written alone since
// that copy gets one as well. Should it fail, the volume is decided alike.
void chip::answer_old_mark() {
    if (const std::optional<int> target = target_written_alone(views_)) {
        port_view& view = views_[static_cast<std::size_t>(*target)];
        view.record->copy_source =
            set_source_mark(path_, *target, record_address(view.sectors).value_or(0));
    }
}

// A host that makes a new mirror of the disk takes its content as it is.
void chip::settle_unfilled() {
    const bool member = std::any_of(views_.begin(), views_.end(), [&](const port_view& view) {
        return view.identity == unfilled_;
    });
    if (member && volume_.state == volume_state::in_order && volume_.kind == array_kind::mirror) {
        unfilled_.reset();
    }
}

// The disk is known by its identity alone: a host writes the record of a single member anew.
bool chip::serves_unfilled() const {
    if (volume_.state != volume_state::degraded && volume_.state != volume_state::diverged) {
        return false;
    }
    const volume_layout layout = layout_of(views_, volume_);
    const port_view& served = views_[static_cast<std::size_t>(layout.first)];
    return served.identity == unfilled();
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
    path_.take_hold_up(); // what the chip's own requests met is nobody's answer
    scsi_reply reply = dispatch(cdb, data_out);
    const hold_up met = path_.take_hold_up();
    reply.delay = met.delay;
    reply.unanswered = met.for_ever;
    reply.data_in.resize(std::min<std::size_t>(reply.data_in.size(), allocation));
    return reply;
}

scsi_reply chip::dispatch(byte_view cdb, byte_view data_out) {
    scsi_reply reply;
    if (cdb.empty() || !is_known(cdb[0])) {
        reply = refused(sense::invalid_opcode);
    } else if (cdb.size() < cdb_length(cdb[0]) || cdb.size() > longest_cdb) {
        reply = refused(sense::invalid_field);
    } else {
        reply = carry_out(cdb, data_out);
    }
    last_sense_ = sense::none;
    if (reply.status != scsi_status::good) {
        last_sense_ = {reply.sense[2], reply.sense[12], reply.sense[13]};
    }
    return reply;
}

scsi_reply chip::carry_out(byte_view cdb, byte_view data_out) {
    switch (cdb[0]) {
    case op_test_unit_ready:
        return test_ready();
    case op_request_sense:
        return request_sense(cdb);
    case op_inquiry:
        return inquiry(cdb);
    case op_mode_sense_6:
    case op_mode_sense_10:
        return mode_sense(cdb);
    case op_start_stop_unit:
    case op_prevent_removal:
        return answered(); // neither has any effect
    case op_read_capacity_10:
        return read_capacity_10();
    case op_read_10:
    case op_read_16:
        return read_blocks(cdb);
    case op_write_10:
    case op_write_16:
        return write_blocks(cdb, data_out);
    case op_verify_10:
        return verify_blocks(cdb);
    case op_synchronize_cache_10:
    case op_synchronize_cache_16:
        return synchronize();
    case op_service_action_in_16:
        return read_capacity_16(cdb);
    case op_report_luns:
        return report_luns(cdb);
    default:
        return vendor(cdb, data_out);
    }
}

} // namespace enclosure
