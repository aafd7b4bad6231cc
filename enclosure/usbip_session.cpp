#include "enclosure/usbip_session.h"

#include "enclosure/imported_device.h"
#include "enclosure/usb_bridge.h"

#include <algorithm>
#include <utility>

namespace enclosure {

namespace {

using usbip::bytes;
using usbip::command;

constexpr std::uint32_t most_length = 1 << 20;       // bytes of one transfer
constexpr std::size_t most_waiting = 1024;           // transfers
constexpr std::size_t most_waiting_bytes = 4U << 20; // of all of them
constexpr std::size_t most_output = 1U << 20;        // beyond it nothing is answered
constexpr std::size_t most_input = most_length + usbip::command_size;
constexpr std::uint32_t last_endpoint = 15;

constexpr moment time_to_ask = std::chrono::seconds(10);
constexpr moment time_to_fetch = std::chrono::seconds(10);
constexpr moment longest_wait = std::chrono::minutes(1); // for a device that restarts

// The last answer of a device that restarts can still be fetched for so long.
constexpr moment time_to_leave = std::chrono::milliseconds(200);

void drop_front(bytes& from, std::size_t count) {
    from.erase(from.begin(), from.begin() + static_cast<std::ptrdiff_t>(count));
}

bool carries_data(const command& got) {
    return got.code == usbip::submit_command && got.way == usbip::direction_out;
}

} // namespace

usbip_session::usbip_session(usb_exports& exports, moment now)
    : exports_(exports), limit_(now + time_to_ask) {}

usbip_session::~usbip_session() = default;

void usbip_session::receive(byte_view data, moment now) {
    input_.insert(input_.end(), data.begin(), data.end());
    go_on(now);
}

void usbip_session::advance(moment now) {
    if (stage_ == stage::waiting) {
        import(now);
    }
    look_at_clock(now);
    go_on(now);
}

bool usbip_session::wants_input() const {
    return stage_ != stage::ending && has_room() && input_.size() < most_input;
}

void usbip_session::sent(std::size_t count, moment now) {
    drop_front(output_, count);
    go_on(now);
}

bool usbip_session::over() const {
    return stage_ == stage::ending && output_.empty();
}

std::optional<moment> usbip_session::next_event() const {
    const bool left = stage_ == stage::imported && !link_->is_there();
    const bool returned = stage_ == stage::waiting &&
                          exports_.find(busid_).state != usb_exports::presence::restarting;
    if (left || returned) {
        return moment{0};
    }
    const bool answers = link_ && stage_ != stage::ending && has_room();
    const std::optional<moment> due = answers ? link_->device().due() : std::nullopt;
    return due && (!limit_ || *due < *limit_) ? due : limit_;
}

bool usbip_session::has_room() const {
    return output_.size() < most_output;
}

void usbip_session::go_on(moment now) {
    answer(now);
    while (has_room() && read_one(now)) {
        answer(now);
    }
    drop_front(input_, read_); // once, as it moves all that is left
    read_ = 0;
    look_after_device(now);
}

// False: there is no whole packet, or none is wanted.
bool usbip_session::read_one(moment now) {
    if (stage_ == stage::greeting) {
        return read_request(now);
    }
    return link_ && stage_ != stage::ending && read_command();
}

bool usbip_session::read_request(moment now) {
    if (unread().size() < usbip::request_size) {
        return false;
    }
    const usbip::request asked = usbip::decode_request(unread());
    if (asked.version != usbip::protocol_version) {
        break_off("speaks another version of USB/IP");
    } else if (asked.code == usbip::list_request) {
        end_with(usbip::list_reply(exports_.devices()), now);
    } else if (asked.code != usbip::import_request) {
        break_off("asked for something unknown");
    } else if (unread().size() >= usbip::request_size + usbip::busid_size) {
        busid_ = usbip::decode_busid(unread().subspan(usbip::request_size, usbip::busid_size));
        read_ += usbip::request_size + usbip::busid_size;
        limit_ = now + longest_wait;
        import(now);
        return true;
    }
    return false;
}

void usbip_session::import(moment now) {
    const usb_exports::finding found = exports_.find(busid_);
    switch (found.state) {
    case usb_exports::presence::unknown:
        end_with(usbip::import_refusal(usbip::reply_status::no_device), now);
        return;
    case usb_exports::presence::taken:
        end_with(usbip::import_refusal(usbip::reply_status::busy), now);
        return;
    case usb_exports::presence::restarting:
        stage_ = stage::waiting;
        return;
    case usb_exports::presence::free:
        link_ = std::make_unique<imported_device>(exports_, found);
        stage_ = stage::imported;
        limit_.reset();
        send(usbip::import_reply(found.device));
        return;
    }
}

bool usbip_session::read_command() {
    if (unread().size() < usbip::command_size) {
        return false;
    }
    const command got = usbip::decode_command(unread());
    if (const char* const trouble = trouble_in(got)) {
        break_off(trouble);
        return false;
    }
    const std::size_t size = usbip::command_size + (carries_data(got) ? got.length : 0);
    if (unread().size() < size) {
        return false;
    }
    if (got.code == usbip::submit_command) {
        submit(got, unread().subspan(usbip::command_size, size - usbip::command_size));
    } else {
        unlink(got);
    }
    read_ += size;
    return true;
}

// Why the stream cannot be followed any further; nothing when it can.
const char* usbip_session::trouble_in(const command& got) const {
    const usb::bridge_device& device = link_->device();
    if (got.code != usbip::submit_command && got.code != usbip::unlink_command) {
        return "sent an unknown command";
    }
    if (got.device != link_->id()) {
        return "sent a command for a device that it has not imported";
    }
    if (got.code == usbip::unlink_command) {
        return nullptr;
    }
    if (got.way > usbip::direction_in || got.endpoint > last_endpoint) {
        return "sent a transfer for an endpoint that cannot be";
    }
    if (got.packets != usbip::no_packets && got.packets != usbip::not_isochronous) {
        return "sent an isochronous transfer";
    }
    if (got.length > most_length) {
        return "sent a transfer of more than 1 MiB";
    }
    if (device.waits(got.number)) {
        return "used a sequence number twice";
    }
    const std::size_t carried = carries_data(got) ? got.length : 0;
    if (device.waiting() >= most_waiting || device.waiting_bytes() + carried > most_waiting_bytes) {
        return "has too many transfers waiting";
    }
    return nullptr;
}

void usbip_session::submit(const command& got, byte_view data) {
    usb::transfer asked;
    asked.number = got.number;
    asked.endpoint = got.endpoint;
    asked.in = got.way == usbip::direction_in;
    asked.length = got.length;
    asked.setup = got.setup;
    asked.data.assign(data.begin(), data.end());
    link_->device().submit(std::move(asked));
}

void usbip_session::unlink(const command& got) {
    const bool found = link_->device().cancel(got.unlinked);
    send(usbip::encode_unlink_reply(got.number,
                                    found ? usbip::transfer_unlinked : usbip::transfer_done));
}

void usbip_session::answer(moment now) {
    while (link_ && stage_ != stage::ending && has_room()) {
        const std::optional<usb::finished_transfer> ended = link_->device().next(now);
        if (!ended) {
            return;
        }
        send(usbip::encode_submit_reply(
            ended->number, ended->stalled ? usbip::transfer_stalled : usbip::transfer_done,
            ended->moved));
        send(ended->sent);
    }
}

// A device that leaves takes the connection with it, which the host's kernel sees as unplugged.
void usbip_session::look_after_device(moment now) {
    if (stage_ == stage::imported && !link_->is_there()) {
        stage_ = stage::leaving;
        limit_ = now + time_to_leave;
    }
    if (stage_ == stage::leaving && !link_->device().has_answer()) {
        end_with({}, now);
    }
}

void usbip_session::look_at_clock(moment now) {
    if (!limit_ || now < *limit_) {
        return;
    }
    switch (stage_) {
    case stage::greeting:
        break_off("asked for nothing in 10 seconds");
        return;
    case stage::waiting:
        end_with(usbip::import_refusal(usbip::reply_status::no_device), now);
        return;
    case stage::imported: // has no limit
        return;
    case stage::leaving:
        end_with({}, now);
        return;
    case stage::ending:
        output_.clear();
        return;
    }
}

void usbip_session::send(const bytes& what) {
    output_.insert(output_.end(), what.begin(), what.end());
}

void usbip_session::end_with(const bytes& last, moment now) {
    send(last);
    stage_ = stage::ending;
    limit_ = now + time_to_fetch;
}

void usbip_session::break_off(const std::string& why) {
    complaint_ = why;
    stage_ = stage::ending;
    output_.clear();
}

} // namespace enclosure
