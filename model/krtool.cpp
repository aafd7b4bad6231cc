#include "model/krtool.h"

#include <algorithm>

#include "util/functions.h"

krtool::krtool(std::unique_ptr<device_tree> device_tree, const services& surroundings)
    : tree(std::move(device_tree)), with(surroundings) {}

bool krtool::setup_controller_map() {
    const lock_scope lock(records);
    controller_map.clear();
    for (const krchip& chip : chips) {
        controller_map.emplace_back(chip.identity.id,
                                    static_cast<std::int32_t>(controller_map.size()));
    }
    std::sort(controller_map.begin(), controller_map.end());
    return true;
}

bool krtool::add_controller(const controller_t& identity, std::uint32_t device) {
    krchip chip;
    chip.device = device;
    chip.identity = identity;
    const lock_scope lock(records);
    chips.push_back(chip);
    return true;
}

bool krtool::controller_exists(const controller_t& identity) const {
    return get_controller_num(identity) >= 0;
}

std::int32_t krtool::get_controller_num(const controller_t& identity) const {
    const lock_scope lock(records);
    return find(identity);
}

bool krtool::curr_chip_exists() const {
    return get_controller_num(current) >= 0;
}

int krtool::updatediskinformation() {
    for (krchip& chip : chips) {
        chip.retrievediskinformation();
    }
    return 1;
}

int krtool::read_raid() {
    for (std::size_t i = 0; i < chips.size(); ++i) {
        writeintofile("reading raid info for chip " + inttostring(i));
        chips[i].read_raid_info();
    }
    build_tree();
    return 1;
}

bool krtool::build_raid(int chip, int mode, bool unused) {
    const auto index = static_cast<std::size_t>(chip);
    return chip >= 0 && index < chips.size() && chips[index].create_raid(mode, unused);
}

bool krtool::clear_raid(int chip) {
    const auto index = static_cast<std::size_t>(chip);
    return chip >= 0 && index < chips.size() && chips[index].clear_raid();
}

bool krtool::warm_boot() {
    return !chips.empty() && chips.front().warm_boot();
}

std::optional<chip_snapshot> krtool::current_chip() const {
    const lock_scope lock(records);
    const std::int32_t index = find(current);
    if (index < 0) {
        return std::nullopt;
    }
    return chip_snapshot{{generation_, index}, chips[static_cast<std::size_t>(index)]};
}

bool krtool::has_chips() const {
    const lock_scope lock(records);
    return !chips.empty();
}

chip_place krtool::current_place() const {
    const lock_scope lock(records);
    return {generation_, find(current)};
}

chip_place krtool::place_of(const krchip& chip) const {
    const lock_scope lock(records);
    const auto found = std::find_if(chips.begin(), chips.end(),
                                    [&chip](const krchip& other) { return &other == &chip; });
    const auto index = static_cast<std::int32_t>(found - chips.begin());
    return {generation_, found == chips.end() ? -1 : index};
}

krchip* krtool::selected() {
    const std::int32_t index = find(current);
    return index < 0 ? nullptr : &chips[static_cast<std::size_t>(index)];
}

krchip* krtool::chip_at(chip_place place) {
    const auto index = static_cast<std::size_t>(place.index);
    if (place.generation != generation_ || place.index < 0 || index >= chips.size()) {
        return nullptr;
    }
    return &chips[index];
}

std::int32_t krtool::find(const controller_t& identity) const {
    const auto found = std::find_if(chips.begin(), chips.end(), [&identity](const krchip& chip) {
        return chip.identity == identity;
    });
    return found == chips.end() ? -1 : static_cast<std::int32_t>(found - chips.begin());
}
