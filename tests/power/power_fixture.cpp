#include "tests/power/power_fixture.h"

#include "model/krtool.h"

namespace {

constexpr std::uint64_t first_data_sector = 64;

bool is_record_write(const disk_pair& disks, const disk_event& event) {
    return event.lba == record_address(disks.at(event.port).value());
}

} // namespace

krchip& power_test::start_program(const disk_pair& disks) {
    constexpr std::time_t minute = 60;
    world().reset();
    clock.set(scripted_clock::start + minute * minute_++);
    return take_chip(disks[0], disks[1]);
}

disk_pair power_test::disks_now() {
    disk_pair disks;
    library.with_bridges([&disks](memory_enclosure& all) { disks = all.bridge(device).disks; });
    drop_empty_sectors(disks);
    return disks;
}

program_reading power_test::read(const disk_pair& disks) {
    const krchip& chip = start_program(disks);
    const outlook seen = outlook_of(chip, true, texts);
    return {seen.is, status_view(&chip, true, texts), seen.advice == "ui_advice_differ"};
}

disk_events power_test::act(disk_pair& disks, const informed_action& what) {
    krchip& chip = start_program(disks);
    const view_state shown = status_view(&chip, true, texts);
    const event_recorder recorder(library);
    {
        const gate_scope work(j.gate);
        what(chip, shown);
    }
    for (const disk_event& event : recorder.events()) {
        EXPECT_TRUE(event.is_flush || event.lba < first_data_sector ||
                    is_record_write(disks, event))
            << "a write to the data area, at sector " << event.lba;
    }
    disks = disks_now();
    return recorder.events();
}

disk_events power_test::act(disk_pair& disks, const action& what) {
    return act(disks, [&what](krchip& chip, const view_state& /*shown*/) { what(chip); });
}

disk_events power_test::let_program_react(disk_pair& disks) {
    disk_events events = act(disks, [](krchip& chip) {
        const bool copied = chip.raid_valid != 0 && chip.rebuild_pending != 0;
        chip.select_chip();
        if (copied) {
            chip.clear_rebuild(false);
            chip.clear_rebuild(true);
        }
    });
    for (const disk_event& event : events) {
        EXPECT_TRUE(event.is_flush || is_record_write(disks, event))
            << "a write beside the records, at sector " << event.lba;
    }
    return events;
}

void power_test::come_back(disk_pair& disks) {
    switch_on(disks);
    let_program_react(disks);
}
