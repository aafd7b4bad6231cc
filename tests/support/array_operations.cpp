#include "tests/support/array_operations.h"

#include "model/krtool.h"

using verdict = array_operation::verdict;

void array_operation::prepare(krchip& chip) const {
    chip.raid_mode = mode;
    for (krdisk& disk : chip.disks) {
        disk.raid_mode = mode;
        disk.raid_capacity = 1900;
    }
}

bool array_operation::run(krchip& chip) const {
    const gate_scope work(j.gate);
    return change(chip);
}

std::vector<array_operation> every_array_operation() {
    return {
        {"CreateStripe", 0, verdict::records, [](krchip& c) { return c.create_raid(1, true); }},
        {"CreateMirror", 0, verdict::records, [](krchip& c) { return c.create_raid(2, true); }},
        {"CreateSpan", 0, verdict::records, [](krchip& c) { return c.create_raid(4, true); }},
        {"CreateNothing", 1, verdict::records, [](krchip& c) { return c.create_raid(0, true); }},
        {"ClearStripe", 1, verdict::records, [](krchip& c) { return c.clear_raid(); }},
        {"ClearMirror", 2, verdict::records, [](krchip& c) { return c.clear_raid(); }},
        {"ClearDisk0", 2, verdict::records, [](krchip& c) { return c.clear_disk(false); }},
        {"ClearDisk1", 2, verdict::records, [](krchip& c) { return c.clear_disk(true); }},
        {"Rebuild0To1", 2, verdict::nothing, [](krchip& c) { return c.rebuild(false); }},
        {"Rebuild1To0", 2, verdict::nothing, [](krchip& c) { return c.rebuild(true); }},
        {"WarmBoot", 2, verdict::restart, [](krchip& c) { return c.warm_boot(); }},
        {"Degrade0", 2, verdict::record, [](krchip& c) { return c.raid_degrade(false); }},
        {"Degrade1", 2, verdict::record, [](krchip& c) { return c.raid_degrade(true); }},
        {"ClearRebuild0", 2, verdict::nothing,
         [](krchip& c) { return c.clear_rebuild(false), true; }},
        {"ClearRebuild1", 2, verdict::nothing,
         [](krchip& c) { return c.clear_rebuild(true), true; }},
    };
}

std::ostream& operator<<(std::ostream& out, const array_operation& operation) {
    return out << operation.name;
}
