#include <array>
#include <optional>

#include "device/access_library.h"
#include "model/krtool.h"
#include "model/monitors.h"
#include "model/window.h"

namespace {

enum class ports { unchanged, changed, nothing_to_watch };

struct presence {
    bool port0 = false;
    bool port1 = false;
};

bool wanted(chip_place place) {
    bool on = false;
    j.with_chip(place, [&on](const krchip& chip) { on = chip.raid1_timer_on; });
    return on;
}

// A register that cannot be read counts as an empty port.
bool read_presence(std::uint32_t device, std::uint32_t address) {
    constexpr std::uint32_t length = 4;
    std::array<unsigned char, sector_size> buffer{};
    return j.with.library.krGetRegister(device, buffer.data(), sector_size, length, address) >= 0 &&
           buffer[0] != 0;
}

std::optional<presence> read_ports(chip_place place) {
    std::optional<std::uint32_t> device;
    j.with_chip(place, [&device](const krchip& chip) { device = chip.device; });
    if (!device) {
        return std::nullopt;
    }
    presence seen;
    const lock_scope lock(j.mutex);
    seen.port0 = read_presence(*device, access_library::presence_port0);
    seen.port1 = read_presence(*device, access_library::presence_port1);
    return seen;
}

ports look_at_ports(chip_place place) {
    const std::optional<presence> seen = read_ports(place);
    ports answer = ports::nothing_to_watch;
    if (!seen) {
        return answer;
    }
    j.with_chip(place, [&](const krchip& chip) {
        const krdisk& d0 = chip.disks[0];
        const krdisk& d1 = chip.disks[1];
        if (seen->port0 != (d0.present != 0) || seen->port1 != (d1.present != 0)) {
            answer = ports::changed;
        } else if ((d0.present != 0 && d0.raid_mode == mode_raid1) ||
                   (d1.present != 0 && d1.raid_mode == mode_raid1)) {
            answer = ports::unchanged;
        }
    });
    return answer;
}

// Whether the bridges that are known are still on the bus.
bool bridges_still_there(chip_place place) {
    std::int64_t known = 0;
    {
        const lock_scope lock(j.records);
        known = static_cast<std::int64_t>(j.chips.size());
    }
    if (!j.with_chip(place, [](const krchip&) {})) {
        return false;
    }
    std::array<unsigned char, access_library::list_size> list{};
    std::int32_t count = 0;
    const lock_scope lock(j.mutex);
    j.with.library.getDeviceList(list.data(), &count);
    return count >= known;
}

void lower_flag(chip_place place) {
    j.with_chip(place, [](krchip& chip) { chip.raid1_timer_alive = false; });
}

void report_swap(const monitor_handle& block) {
    j.with.pause.sleep(std::chrono::seconds(2));
    if (!bridges_still_there(block->place)) {
        return; // the bridge itself has gone: that is told elsewhere
    }
    ctrller->show_hot_swap_message();
    j.hot_swap_seen = false;
    // Before the refresh: its scan waits for this flag, on this very thread.
    lower_flag(block->place);
    block->let_go();
    ctrller->refresh();
}

} // namespace

void raid1_timer(const monitor_handle& block) {
    if (j.with_chip(block->place, [](krchip& chip) { chip.raid1_timer_alive = true; })) {
        while (wanted(block->place)) {
            j.with.pause.sleep(std::chrono::seconds(1));
            const ports seen = look_at_ports(block->place);
            if (seen == ports::changed) {
                report_swap(block);
            }
            if (seen != ports::unchanged) {
                break;
            }
        }
        lower_flag(block->place);
    }
}
