// A device tree that writes down what it is told and prints itself.
#pragma once

#include <string>
#include <vector>

#include "model/device_tree.h"
#include "tests/support/call_log.h"

// Guarded as device_tree says.
class recording_tree final : public device_tree {
public:
    explicit recording_tree(call_log& log) : log_(log) {}

    // One line per node, two blanks of indent per level.
    std::string text() const;
    // Empties it without a line in the log.
    void reset() { chips_.clear(); }

    void cleartree() override;
    void addchipFirewire(bool firewire) override;
    void addraid(std::int32_t position, const std::string& withstring) override;
    void adddisk(std::int32_t position, const std::string& withstring, bool Raid) override;

private:
    struct branch {
        std::string label;
        std::vector<std::string> disks;
    };
    struct chip_branch {
        std::string label;
        std::vector<branch> arrays;
        std::vector<std::string> disks;
    };

    chip_branch* at(std::int32_t position);

    call_log& log_;
    std::vector<chip_branch> chips_;
};
