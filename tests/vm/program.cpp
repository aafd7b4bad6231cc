#include "tests/vm/program.h"

#include "device/linked_library.h"
#include "device/source_registry.h"
#include "device/sysfs_volume_uses.h"
#include "device/udev_source.h"
#include "model/exit_gate.h"
#include "model/krtool.h"
#include "model/rescan.h"
#include "model/system_services.h"

#include "tests/support/recording_tree.h"
#include "tests/support/selected_chip.h"
#include "tests/support/table_lookup.h"

#include <memory>
#include <stdexcept>
#include <thread>

namespace {

linked_library library;
source_registry registry(std::make_unique<udev_source>());
steady_pauses sleeper;
system_clock wall;
detached_threads threads;
system_log console;
table_lookup texts;
exit_gate way_out;
sysfs_volume_uses volumes;
call_log tree_log;
desk_window desk;

} // namespace

krtool j(std::make_unique<recording_tree>(tree_log),
         {library, registry, registry, sleeper, wall, threads, console, texts, way_out, volumes});
window* ctrller = &desk;

desk_window& the_window() {
    return desk;
}

void start_program() {
    static const bool once = [] {
        std::thread([] { start_device_notification(nullptr); }).detach();
        return true;
    }();
    static_cast<void>(once);
}

std::optional<krchip> chip_with(const std::string& serial) {
    const lock_scope lock(j.records);
    for (const krchip& chip : j.chips) {
        if (chip.identity.serial == serial) {
            return chip;
        }
    }
    return std::nullopt;
}

namespace {

std::string in_words(const std::optional<krchip>& chip) {
    if (!chip) {
        return "not there";
    }
    std::string words = "array " + std::to_string(chip->raid_mode) + " valid " +
                        std::to_string(chip->raid_valid) + " rebuild pending " +
                        std::to_string(chip->rebuild_pending) + " possible " +
                        std::to_string(chip->rebuild_possible);
    for (const krdisk& disk : chip->disks) {
        words += "; disk " + std::to_string(disk.present) + " mode " +
                 std::to_string(disk.raid_mode) + " mark " + std::to_string(disk.rebuild_mark) +
                 " role " + std::to_string(disk.rebuild_role);
    }
    return words;
}

} // namespace

krchip await_chip(const std::string& what, const std::string& serial,
                  const std::function<bool(const krchip& chip)>& is_so) {
    std::optional<krchip> found;
    try {
        desk.await(serial + ": " + what, [&] {
            found = chip_with(serial);
            return found && is_so(*found);
        });
    } catch (const std::runtime_error& trouble) {
        throw std::runtime_error(trouble.what() + ("; it is " + in_words(found)));
    }
    return *found;
}

void select(const std::string& serial) {
    {
        const gate_scope gate(j.gate);
        const std::optional<krchip> wanted = chip_with(serial);
        if (!wanted) {
            throw std::runtime_error("no enclosure " + serial);
        }
        if (!(wanted->identity == j.current)) {
            select_enclosure(wanted->identity);
        }
    }
    desk.update_raid_information();
}

bool change(const std::string& serial, const std::function<bool(krchip& chip)>& operation) {
    select(serial);
    const gate_scope gate(j.gate);
    return operation(*j.selected());
}
