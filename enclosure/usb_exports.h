// The exported enclosures of a desk, as clients of USB/IP see them.
#pragma once

#include "enclosure/desk.h"
#include "enclosure/usb_descriptors.h"
#include "enclosure/usbip_wire.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace enclosure {

// One thread at a time; no errors.
class usb_exports {
public:
    // `on` outlives it.
    explicit usb_exports(desk& on) : on_(on) {}

    // Those that a client could import now.
    std::vector<usbip::device> devices() const;

    enum class presence { unknown, restarting, taken, free };
    struct finding {
        presence state = presence::unknown;
        std::uint32_t handle = 0; // taken or free
        usbip::device device;
        usb::identity identity;
    };
    finding find(std::string_view busid) const;

    // A client has, or no longer has, the device that is there by this handle.
    void take(std::uint32_t handle) { taken_.insert(handle); }
    void give_back(std::uint32_t handle) { taken_.erase(handle); }

    bool is_there(std::uint32_t handle) const;

    // Nothing when the device has left.
    std::optional<scsi_reply> execute(std::uint32_t handle, byte_view cdb, byte_view data_out,
                                      std::uint32_t allocation) {
        return on_.execute(handle, cdb, data_out, allocation);
    }

private:
    finding look_at(const cabinet& what) const;

    desk& on_;
    std::set<std::uint32_t> taken_; // handles
};

} // namespace enclosure
