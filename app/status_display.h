// What the window shows of the selected chip, worked out without a window.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/services.h"

class krchip;

enum class disk_condition { good, degraded, broken };

// The outlets that belong to one disk. Texts are UTF-8.
struct disk_view {
    bool present = false;
    disk_condition condition = disk_condition::good; // which picture it has
    std::string modelfield;
    std::string serialfield;
    std::string sizefield;
    std::string modefield;
    std::string rebuilddiskfield;
    std::string oldnewlabel;
    std::string picmodefield;
    std::string caplabel;
    std::string label;
    bool cappicture = false;      // shown
    bool cleardiskbutton = false; // enabled and shown
    bool rebuildbutton = false;   // the one from this disk to the other is enabled
};

// Everything that an update shows and does beyond the blank state.
struct view_state {
    bool blank = true; // there is no chip to show, and nothing below applies
    bool raid_valid = false;
    std::array<disk_view, 2> disks; // index = port
    std::string raidmodelabel;
    bool confirmbutton = false;     // enabled
    bool both_idle = false;         // two disks and no rebuild: which enables it as the last step
    bool clearconfigbutton = false; // enabled
    bool showdiskguibutton = false; // enabled
    std::string alert_title;
    std::vector<std::string> alerts; // messages, in the order of showing
    bool rebuild_tab_for_choice = false;
    bool rebuild_running = false;      // rebuild tab, poller and picture
    std::optional<int> rebuild_source; // port whose button carries the picture
};

// The view of a chip; nothing (no chip, or the selected one is not there) gives the blank state.
// Any thread; any field values are safe.
view_state status_view(const krchip* chip, bool decimal_units, const text_lookup& texts);

// The name of an array kind; every mode that is none is "not configured".
std::string mode_name(std::int32_t mode, const text_lookup& texts);

// Sizes in gigabytes: decimal ones, else units of 2^30 bytes. `sectors` count 512 bytes.
std::string size_text(std::uint64_t sectors, bool decimal_units);
// The same, in terabytes with two decimals from a decimal terabyte on.
std::string capacity_text(std::uint64_t sectors, bool decimal_units);
