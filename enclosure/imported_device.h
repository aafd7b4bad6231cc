// The exported device that one client has.
#pragma once

#include "enclosure/usb_bridge.h"
#include "enclosure/usb_exports.h"

#include <cstdint>
#include <optional>
#include <utility>

namespace enclosure {

// While it lives, no other client can have the device. One thread at a time; no errors: a command
// for a device that has left is never answered.
class imported_device final : public usb::scsi_target {
public:
    // `found` is free; `exports` outlives it.
    imported_device(usb_exports& exports, const usb_exports::finding& found)
        : exports_(exports),
          handle_(found.handle),
          id_(found.device.id()),
          device_(found.identity, *this) {
        exports_.take(handle_);
    }
    ~imported_device() override { exports_.give_back(handle_); }

    scsi_reply execute(byte_view cdb, byte_view data_out, std::uint32_t allocation) override {
        std::optional<scsi_reply> reply = exports_.execute(handle_, cdb, data_out, allocation);
        if (!reply) {
            reply.emplace().unanswered = true;
        }
        return *std::move(reply);
    }

    bool is_there() const { return exports_.is_there(handle_); }

    // By which the client names it in its commands.
    std::uint32_t id() const { return id_; }
    usb::bridge_device& device() { return device_; }

private:
    usb_exports& exports_;
    std::uint32_t handle_;
    std::uint32_t id_;
    usb::bridge_device device_;
};

} // namespace enclosure
