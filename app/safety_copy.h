// A copy of both RAID records, kept before they are changed (docs/formats.md, docs/recovery.md).
#pragma once

#include <ctime>
#include <string>

class krchip;
struct change_plan;

// The copy as text: the sectors as last read, and whose they are. Any thread; any field values are
// safe.
std::string safety_copy_text(const change_plan& plan, const krchip& chip, std::time_t now);

// Where copies are kept. Any thread, none of the model's locks held but the gate.
class copy_keeper {
public:
    virtual ~copy_keeper() = default;
    // Returns when the copy can no longer be lost. Not empty: why it could not be kept.
    virtual std::string keep(const std::string& text, std::time_t now) = 0;
};

// One file per copy, named by its time and readable by its owner alone, in the folder of the
// program's state: $XDG_STATE_HOME/kestrelraid, or ~/.local/state/kestrelraid.
class copies_in_state_folder final : public copy_keeper {
public:
    std::string keep(const std::string& text, std::time_t now) override;
};
