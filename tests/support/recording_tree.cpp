#include "tests/support/recording_tree.h"

#include <cstddef>

std::string recording_tree::text() const {
    std::string result;
    for (const chip_branch& chip : chips_) {
        result += chip.label + "\n";
        for (const branch& array : chip.arrays) {
            result += "  " + array.label + "\n";
            for (const std::string& disk : array.disks) {
                result += "    " + disk + "\n";
            }
        }
        for (const std::string& disk : chip.disks) {
            result += "  " + disk + "\n";
        }
    }
    return result;
}

recording_tree::chip_branch* recording_tree::at(std::int32_t position) {
    const auto index = static_cast<std::size_t>(position);
    return position >= 0 && index < chips_.size() ? &chips_[index] : nullptr;
}

void recording_tree::cleartree() {
    log_.add(from_tree, "cleartree()");
    chips_.clear();
}

void recording_tree::addchipFirewire(bool firewire) {
    log_.add(from_tree, "addchipFirewire(" + yes_no(firewire) + ")");
    chips_.push_back({firewire ? "chip (1394)" : "chip (USB)", {}, {}});
}

void recording_tree::addraid(std::int32_t position, const std::string& withstring) {
    log_.add(from_tree, "addraid(" + std::to_string(position) + ", " + quoted(withstring) + ")");
    if (chip_branch* chip = at(position)) {
        chip->arrays.push_back({withstring, {}});
    }
}

void recording_tree::adddisk(std::int32_t position, const std::string& withstring, bool Raid) {
    log_.add(from_tree, "adddisk(" + std::to_string(position) + ", " + quoted(withstring) + ", " +
                            yes_no(Raid) + ")");
    chip_branch* chip = at(position);
    if (chip == nullptr || (Raid && chip->arrays.empty())) {
        return;
    }
    (Raid ? chip->arrays.front().disks : chip->disks).push_back(withstring);
}
