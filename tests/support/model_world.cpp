#include "tests/support/model_world.h"

#include <gtest/gtest.h>
#include <memory>

#include "tests/support/diagnostic_capture.h"

model_world& world() {
    static model_world the_world;
    return the_world;
}

// world() is complete before `j` is, and so outlives it.
krtool j(std::make_unique<recording_tree>(world().log), world().all());
window* ctrller = &world().view;

recording_tree& tree_of_j() {
    return dynamic_cast<recording_tree&>(*j.tree);
}

namespace {

// The user's data begin behind sector 63, and end before the RAID record.
void check_written_sector(const library_call& call) {
    constexpr std::uint64_t start = 64;
    constexpr std::uint64_t record_distance = 15;
    world().library.with_bridges([&call](memory_enclosure& all) {
        if (!all.has(call.device) || call.port < 0 || call.port > 1) {
            return;
        }
        const auto& disk = all.bridge(call.device).disks.at(static_cast<std::size_t>(call.port));
        if (disk) {
            EXPECT_TRUE(call.lba < start || call.lba == disk->size - record_distance ||
                        call.lba >= disk->size)
                << call.text << " writes to a sector of the user's";
        }
    });
}

void check_library_call(const library_call& call) {
    EXPECT_FALSE(j.records.held_here()) << call.text << " with the records lock held";
    if (call.per_device()) {
        EXPECT_TRUE(j.mutex.held_here()) << call.text << " without the library mutex";
    }
    if (call.record) {
        EXPECT_TRUE(j.gate.held_here()) << call.text << " without the gate";
        check_written_sector(call);
    }
}

void check_window_call() {
    EXPECT_FALSE(j.records.held_here()) << "the window was called with the records lock held";
    EXPECT_FALSE(j.mutex.held_here()) << "the window was called with the library mutex held";
}

std::string remark_on_pause() {
    EXPECT_FALSE(j.records.held_here()) << "a pause with the records lock held";
    return j.mutex.held_here() ? " locked" : "";
}

void reset_tool() {
    const gate_scope work(j.gate);
    const lock_scope lock(j.records);
    j.current = {};
    j.chips.clear();
    j.controller_map.clear();
    j.warm_boot_pending = false;
    j.hot_swap_seen = false;
    tree_of_j().reset();
}

} // namespace

services model_world::all() {
    return {library, registry, hotplug, pause, clock, threads, console, texts, exit, volumes};
}

void model_world::note_end(int status) {
    log.add(from_exit, "leave(" + std::to_string(status) + ")");
}

void model_world::hold_the_rules() {
    library.on_call(check_library_call);
    view.on_call(check_window_call);
    pause.remark(remark_on_pause);
}

void model_world::reset() {
    threads.reset();
    library.finish();
    registry.reset();
    hotplug.reset();
    pause.reset();
    clock.set(scripted_clock::start);
    texts.reset();
    volumes.reset();
    view.reset();
    // Once it has let a process go, a gate stays open: the next test gets a new one.
    std::destroy_at(&exit);
    std::construct_at(&exit, [this](int status) { note_end(status); });
    reset_tool();
    capture_diagnostics(&log);
    hold_the_rules();
    log.clear();
}
