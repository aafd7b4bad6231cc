#include "tests/bench/bench_program.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "device/linked_library.h"
#include "model/exit_gate.h"
#include "model/system_services.h"

namespace {

bench_desk desk;
linked_library library;
counted_pauses counted;
system_clock wall;
no_threads threads;
no_log console;
keys_only texts;
exit_gate way_out;
no_volumes volumes;
no_window view;

} // namespace

krtool j(std::make_unique<no_tree>(), {library, desk.registry(), desk.registry(), counted, wall,
                                       threads, console, texts, way_out, volumes});
window* ctrller = &view;

bench_desk& the_desk() {
    return desk;
}

counted_pauses& the_pauses() {
    return counted;
}

// Beside the names, the list's own pause.
void no_window::update_controller_list() {
    counted.sleep(std::chrono::seconds(2));
    for (const krchip& chip : j.chips) {
        benchmark::DoNotOptimize(chip.get_raid_name());
    }
}

void no_window::show_error_and_exit(const std::string& message) {
    std::fprintf(stderr, "kestrel_bench: %s\n", message.c_str());
    std::exit(1); // NOLINT(concurrency-mt-unsafe): the measuring is over
}

BENCHMARK_MAIN();
