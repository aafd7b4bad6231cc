// One enclosure: a chip with its two bays, and its place on the bus.
#pragma once

#include "enclosure/chip.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace enclosure {

enum class bus_kind { usb, firewire };

// USB ids of an enclosure that was not given others.
inline constexpr std::uint16_t usual_vendor_id = 0x1209;
inline constexpr std::uint16_t usual_product_id = 0x4B52;

struct cabinet_settings {
    std::string name;
    bus_kind bus = bus_kind::usb;
    std::uint16_t vendor_id = usual_vendor_id;
    std::uint16_t product_id = usual_product_id;
    std::optional<std::int32_t> location;          // USB socket; nothing: the desk picks a free one
    std::string serial;                            // USB; at most 99 printable ASCII characters
    std::optional<std::uint64_t> guid;             // FireWire; nothing: the desk picks a free one
    std::string product = "Kestrel Duo";           // at most 15 printable ASCII characters
    std::chrono::milliseconds restart_delay{1000}; // off the bus at a warm boot; up to a minute
};

// Throws problem when a setting is out of range.
void check_settings(const cabinet_settings& settings);

// What the desk can see of a bridge that is on the bus.
struct bridge {
    std::uint32_t handle = 0;
    bus_kind bus = bus_kind::usb;
    std::uint32_t vendor_id = 0;
    std::uint32_t product_id = 0;
    std::int32_t location = 0;
    std::string serial;
    std::uint64_t guid = 0;
    std::string name;

    bool operator==(const bridge&) const = default;
};

// Plugged in means powered and on the bus, but for the time that a restart takes. It may be
// exported instead of being on the desk's own bus. One thread at a time.
class cabinet {
public:
    explicit cabinet(cabinet_settings settings);
    cabinet(const cabinet&) = delete;
    cabinet& operator=(const cabinet&) = delete;

    const cabinet_settings& settings() const { return settings_; }

    // Switches on, at `now`, with a handle that no bridge ever had.
    void plug(std::uint32_t handle, moment now,
              const std::optional<kept_copy>& before = std::nullopt);
    void unplug(); // ends an export, too

    // The same with an export, until it is unplugged.
    void begin_export(std::uint32_t number, std::uint32_t handle, moment now);

    // Its number among the exported ones; nothing while it is not exported.
    const std::optional<std::uint32_t>& export_number() const { return export_number_; }

    // Leaves the bus; returns_at() is when it wants to be plugged in again. The chip begins a copy
    // anew then.
    void begin_restart(moment now);

    // The same by a power cut. False: what was not flushed could not be taken back.
    bool cut_power(moment now);

    bool plugged() const { return handle_ || returns_at_; }
    const std::optional<std::uint32_t>& handle() const { return handle_; }
    const std::optional<moment>& returns_at() const { return returns_at_; }

    // The latest handle it had; 0 when it never was plugged in.
    std::uint32_t last_handle() const { return last_handle_; }
    void restore_last_handle(std::uint32_t handle) { last_handle_ = handle; }

    // Its chip's copy as it may be kept; nothing while it is not on the bus.
    std::optional<kept_copy> lasting_copy() const;

    // How it appears on the desk's own bus; nothing while it is not there.
    std::optional<bridge> on_the_bus() const;

    // `port` is 0 or 1; insert needs an empty bay.
    void insert(int port, std::shared_ptr<disk> what);
    std::shared_ptr<disk> pull(int port);

    const bays& disks() const { return bays_; }
    fault_stack& faults() { return faults_; }
    const fault_stack& faults() const { return faults_; }
    chip& bridge_chip() { return chip_; }
    const chip& bridge_chip() const { return chip_; }

private:
    void bay_changed();
    void settle_disks();

    cabinet_settings settings_;
    bays bays_;
    fault_stack faults_;
    chip chip_;
    std::optional<std::uint32_t> handle_;
    std::optional<moment> returns_at_;
    std::uint32_t last_handle_ = 0;
    std::optional<std::uint32_t> export_number_;
};

} // namespace enclosure
