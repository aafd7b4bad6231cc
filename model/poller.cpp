#include <array>
#include <optional>

#include "device/access_library.h"
#include "model/krtool.h"
#include "model/monitors.h"
#include "model/window.h"
#include "util/bytes.h"

namespace {

// The chip counts as finished on the reading after this many finished ones.
constexpr int finished_readings = 6;

struct rebuild_status {
    std::uint64_t end = 0;     // LBA
    std::uint64_t current = 0; // LBA
};

// The chip's handle, while its rebuild is to be followed.
std::optional<std::uint32_t> wanted_device(chip_place place) {
    std::optional<std::uint32_t> device;
    j.with_chip(place, [&device](const krchip& chip) {
        if (chip.polling) {
            device = chip.device;
        }
    });
    return device;
}

std::optional<rebuild_status> read_status(std::uint32_t device) {
    std::array<unsigned char, access_library::status_size> record{};
    const lock_scope lock(j.mutex);
    if (j.with.library.krGetRebuildStatus(device, record.data(), access_library::status_size) !=
        0) {
        return std::nullopt;
    }
    return rebuild_status{load_le48(record.data()), load_le48(record.data() + 6)};
}

// Removes the rebuild marks. False: somebody else has taken the chip over, and nothing was done.
bool clean_up(chip_place place) {
    for (;;) {
        {
            const gate_attempt mine(j.gate);
            if (!wanted_device(place)) {
                return false;
            }
            if (mine) {
                krchip& chip = *j.chip_at(place);
                {
                    const lock_scope lock(j.records);
                    chip.rebuild_pending = 0;
                    chip.polling = false;
                }
                chip.clear_rebuild(false);
                chip.clear_rebuild(true);
                return true;
            }
        }
        j.with.pause.sleep(std::chrono::milliseconds(10));
    }
}

void finish(chip_place place, const rebuild_status& status) {
    if (!clean_up(place)) {
        return;
    }
    ctrller->updatepoll(status.end, status.current, true);
    ctrller->show_message(j.with.texts.text("rebuild_finished"));
    ctrller->update_raid_information();
}

// Follows the copy. False: the chip did not answer.
bool follow(const monitor_handle& block) {
    int finished = 0;
    while (const std::optional<std::uint32_t> device = wanted_device(block->place)) {
        const std::optional<rebuild_status> status = read_status(*device);
        if (!status) {
            j.with_chip(block->place, [](krchip& chip) { chip.polling = false; });
            return false;
        }
        if (!j.with_chip(block->place, [](const krchip&) {})) {
            return true; // the reading is of a chip that nobody shows any longer
        }
        ctrller->updatepoll(status->end, status->current, false);
        if (status->end > status->current) {
            finished = 0;
        } else if (finished < finished_readings) {
            ++finished;
        } else {
            finish(block->place, *status);
        }
        j.with.pause.sleep_until_woken(block->stop, std::chrono::seconds(4));
    }
    return true;
}

} // namespace

void poller(const monitor_handle& block) {
    if (j.with_chip(block->place, [](krchip& chip) { chip.poller_alive = true; }) &&
        follow(block)) {
        // After a failed reading the flag stays up, on purpose.
        j.with_chip(block->place, [](krchip& chip) { chip.poller_alive = false; });
    }
}
