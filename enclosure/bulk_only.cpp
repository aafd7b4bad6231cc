#include "enclosure/bulk_only.h"

#include "enclosure/opcodes.h"
#include "enclosure/usb_descriptors.h"
#include "enclosure/vendor_commands.h"
#include "enclosure/volume_commands.h"

#include <algorithm>
#include <utility>

namespace enclosure::usb {

std::uint64_t outgoing_bytes(byte_view cdb) {
    if (cdb.empty() || cdb.size() < cdb_length(cdb[0])) {
        return 0;
    }
    if (cdb[0] == op_write_10 || cdb[0] == op_write_16) {
        return range_in(cdb).count * sector_size;
    }
    if (cdb[0] != vendor_opcode) {
        return 0;
    }
    const std::optional<vendor_command> own = decode_vendor(cdb);
    return own && own->action == vendor_action::write_sector ? own->length : 0;
}

std::optional<pipe_result> bulk_only::take(byte_view data, moment now) {
    advance(now);
    if (out_halted_) {
        return pipe_result{true, 0, {}};
    }
    if (phase_ == phase::command) {
        take_command(data, now);
        return pipe_result{false, data.size(), {}};
    }
    if (phase_ == phase::data_out) {
        return take_data(data, now);
    }
    return std::nullopt;
}

std::optional<pipe_result> bulk_only::give(std::size_t room, moment now) {
    advance(now);
    if (in_halted_) {
        return pipe_result{true, 0, {}};
    }
    if (room == 0) {
        return pipe_result{};
    }
    if (phase_ == phase::data_in) {
        return send_data(room);
    }
    if (phase_ == phase::status) {
        return send_status(room);
    }
    return std::nullopt;
}

std::optional<moment> bulk_only::due() const {
    return phase_ == phase::working ? ready_at_ : std::nullopt;
}

void bulk_only::halt(pipe which) {
    halt_of(which) = true;
}

void bulk_only::clear_halt(pipe which) {
    if (phase_ != phase::broken) {
        halt_of(which) = false;
    }
}

void bulk_only::reset() {
    phase_ = phase::command;
    data_.clear();
    reply_ = {};
    ready_at_.reset();
}

void bulk_only::begin_anew() {
    reset();
    in_halted_ = false;
    out_halted_ = false;
}

void bulk_only::take_command(byte_view data, moment now) {
    const std::optional<command_wrapper> got = decode_command_wrapper(data);
    if (!got) {
        break_off();
        return;
    }
    command_ = *got;
    moved_ = 0;
    data_.clear();
    const std::uint64_t wanted = outgoing_bytes(command_.cdb);
    const bool host_sends = command_.length > 0 && !command_.in;
    if (command_.length > most_command_data ||
        (wanted > 0 && (!host_sends || wanted > command_.length))) {
        disagree();
    } else if (wanted > 0) {
        awaited_ = static_cast<std::uint32_t>(wanted);
        phase_ = phase::data_out;
    } else {
        execute(now);
    }
}

pipe_result bulk_only::take_data(byte_view data, moment now) {
    const std::size_t count = std::min<std::size_t>(data.size(), awaited_ - moved_);
    data_.insert(data_.end(), data.begin(), data.begin() + static_cast<std::ptrdiff_t>(count));
    moved_ += static_cast<std::uint32_t>(count);
    const bool surplus = count < data.size();
    out_halted_ = surplus;
    if (moved_ == awaited_) {
        execute(now);
    }
    return {surplus, count, {}};
}

void bulk_only::execute(moment now) {
    reply_ = target_.execute(command_.cdb, data_, most_command_data);
    data_.clear();
    phase_ = phase::working;
    ready_at_ = reply_.unanswered ? std::nullopt : std::optional(now + reply_.delay);
    advance(now);
}

void bulk_only::advance(moment now) {
    if (phase_ == phase::working && ready_at_ && *ready_at_ <= now) {
        conclude();
    }
}

void bulk_only::conclude() {
    phase_ = phase::status;
    status_ = reply_.status == scsi_status::good ? command_status::passed : command_status::failed;
    if (command_.length == 0 || !command_.in) {
        conclude_out();
    } else {
        conclude_in();
    }
}

// The host sends, or expects no data at all.
void bulk_only::conclude_out() {
    if (!reply_.data_in.empty()) {
        status_ = command_status::phase_error;
    }
    out_halted_ = out_halted_ || moved_ < command_.length;
}

void bulk_only::conclude_in() {
    data_ = std::move(reply_.data_in);
    if (data_.size() > command_.length) {
        status_ = command_status::phase_error;
        data_.resize(command_.length);
    }
    if (data_.empty()) {
        in_halted_ = true;
    } else {
        phase_ = phase::data_in;
    }
}

// A packet that is not full ends the host's transfer; after full ones only a stall does.
pipe_result bulk_only::send_data(std::size_t room) {
    const auto count = static_cast<std::ptrdiff_t>(std::min(room, data_.size()));
    pipe_result result{false, 0, {data_.begin(), data_.begin() + count}};
    data_.erase(data_.begin(), data_.begin() + count);
    moved_ += static_cast<std::uint32_t>(count);
    if (data_.empty()) {
        phase_ = phase::status;
        in_halted_ = moved_ < command_.length;
        result.stalled =
            in_halted_ && result.sent.size() < room && result.sent.size() % bulk_packet == 0;
    }
    return result;
}

pipe_result bulk_only::send_status(std::size_t room) {
    const auto wrapper = encode_status_wrapper(command_.tag, command_.length - moved_, status_);
    phase_ = phase::command;
    const std::size_t count = std::min(room, wrapper.size());
    return {false, 0, {wrapper.begin(), wrapper.begin() + static_cast<std::ptrdiff_t>(count)}};
}

// The host's idea of the data cannot be met: nothing is moved.
void bulk_only::disagree() {
    status_ = command_status::phase_error;
    phase_ = phase::status;
    if (command_.length > 0) {
        halt(command_.in ? pipe::in : pipe::out);
    }
}

// After what is no command nothing can be understood until the host resets the device.
void bulk_only::break_off() {
    phase_ = phase::broken;
    in_halted_ = true;
    out_halted_ = true;
}

} // namespace enclosure::usb
