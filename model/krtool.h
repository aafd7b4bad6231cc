// The root of the model.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "model/device_tree.h"
#include "model/krchip.h"
#include "model/locks.h"
#include "model/services.h"
#include "model/shared_flag.h"
#include "util/library.h"

class window;

// A copy of a chip's record, and where it was taken.
struct chip_snapshot {
    chip_place place;
    krchip chip;
};

// Operations run on the thread that asks, never on the interface thread. `current`, `chips`,
// `controller_map` and the tree are written with the gate and `records` held, and read with either
// of them (docs/threads.md). Unless said otherwise an operation is called with the gate held and
// both locks free.
class krtool {
public:
    krtool(std::unique_ptr<device_tree> tree, const services& surroundings);

    controller_t current;      // what the user has selected
    std::vector<krchip> chips; // in scan order
    const std::unique_ptr<device_tree> tree;
    std::vector<std::pair<std::uint64_t, std::int32_t>> controller_map; // key, index in chips
    owned_mutex mutex;             // around every per-device library call
    shared_flag warm_boot_pending; // the bridge's next departure is our own doing
    shared_flag hot_swap_seen;

    // Around changes of the records as wholes, and around looks at them without the gate.
    work_gate gate;
    mutable owned_mutex records;
    const services with;

    // Rebuilds `chips` from the registry. False: the device list could not be had, and there
    // are no chips. A bridge that cannot be opened ends the process.
    bool scandevices();
    // Rebuilds and sorts `controller_map`. Always true.
    bool setup_controller_map();
    // Appends a chip. Always true.
    bool add_controller(const controller_t& identity, std::uint32_t device);
    // Linear searches with the equality of controller_t; any thread, gate or not.
    bool controller_exists(const controller_t& identity) const;
    std::int32_t get_controller_num(const controller_t& identity) const; // -1: not there
    bool curr_chip_exists() const;
    // Stops the current chip's monitors, closes the connections and empties `chips`. Always
    // true.
    bool flush_chips();

    // Asks every chip for its disks; 2 seconds a chip. Always 1.
    int updatediskinformation();
    // Reads every chip's metadata and rebuilds the tree. Always 1.
    int read_raid();
    // Rebuilds the device tree from the records and shows it. Always true.
    bool build_tree();

    // Changes of the array of the chip with index `chip` (krchip); false, and nothing done, for an
    // index that is not there.
    bool build_raid(int chip, int mode, bool unused);
    bool clear_raid(int chip);
    // Restarts the first chip of the list, whichever is selected. False without chips.
    bool warm_boot();

    // For those without the gate; any thread.

    // The selected chip, copied.
    std::optional<chip_snapshot> current_chip() const;
    bool has_chips() const;
    // Where the selected chip is; index -1 when it is not in the list.
    chip_place current_place() const;
    // Runs `action` on the chip at `place` with `records` held: no library call, wait or window
    // call in it. False, and nothing run, when a scan has replaced the records since.
    template<class Action> bool with_chip(chip_place place, Action action) {
        const lock_scope lock(records);
        krchip* chip = chip_at(place);
        if (chip == nullptr) {
            return false;
        }
        action(*chip);
        return true;
    }

    // Where an element of `chips` is; index -1 for any other chip.
    chip_place place_of(const krchip& chip) const;

    // Elements of `chips`, or nothing. Gate or `records` held for as long as they are used.
    krchip* selected();
    krchip* chip_at(chip_place place);

private:
    std::int32_t find(const controller_t& identity) const;

    std::uint64_t generation_ = 0; // raised by every flush; guarded by records
};

// The one tool object and the one window, defined by the program.
extern krtool j;
extern window* ctrller;
