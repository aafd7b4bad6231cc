// An enclosure as a USB device: its endpoints, and the host's transfers that wait at them.
#pragma once

#include "enclosure/bulk_only.h"
#include "enclosure/usb_control.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

namespace enclosure::usb {

// One transfer that the host asks for.
struct transfer {
    std::uint32_t number = 0; // the host's, of no other meaning
    std::uint32_t endpoint = 0;
    bool in = false;
    std::uint32_t length = 0;       // of the host's buffer
    setup_packet setup{};           // control_endpoint
    std::vector<std::uint8_t> data; // out
};

// How it ended.
struct finished_transfer {
    std::uint32_t number = 0;
    bool stalled = false;
    std::uint32_t moved = 0;        // bytes
    std::vector<std::uint8_t> sent; // in: those bytes
};

// One thread at a time. Transfers of an endpoint are carried out in their order.
class bridge_device {
public:
    // `target` outlives it.
    bridge_device(identity of, scsi_target& target)
        : storage_(target), control_(std::move(of), storage_) {}
    bridge_device(const bridge_device&) = delete;
    bridge_device& operator=(const bridge_device&) = delete;

    void submit(transfer asked);

    // Forgets a transfer that has not ended; false: there is none of that number.
    bool cancel(std::uint32_t number);

    // The next one that has ended by `now`.
    std::optional<finished_transfer> next(moment now);

    bool waits(std::uint32_t number) const;
    std::size_t waiting() const { return control_queue_.size() + in_.size() + out_.size(); }
    std::size_t waiting_bytes() const; // that the host sent along

    // When an answer that takes time will be there.
    std::optional<moment> due() const { return storage_.due(); }

    // The host has still to fetch an answer that is ready.
    bool has_answer() const { return storage_.has_answer(); }

private:
    using queue = std::deque<transfer>;

    queue& queue_for(const transfer& asked);
    finished_transfer answer_control(const transfer& asked);
    std::optional<finished_transfer> next_out(moment now);
    std::optional<finished_transfer> next_in(moment now);

    bulk_only storage_;
    control control_;
    queue control_queue_; // and what has no endpoint to wait at
    queue in_;
    queue out_;
};

} // namespace enclosure::usb
