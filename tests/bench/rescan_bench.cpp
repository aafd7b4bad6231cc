// A rescan of n enclosures through the bundled access library and the session bus, without the
// designed pauses: what the program adds to them.
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "device/linked_library.h"
#include "model/exit_gate.h"
#include "model/krtool.h"
#include "model/rescan.h"
#include "model/system_services.h"
#include "tests/bench/bench_desk.h"
#include "tests/bench/bench_surroundings.h"

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

namespace {

void rescan(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    desk.have(count);
    counted.total = {};
    while (state.KeepRunning()) {
        DeviceAdded(nullptr, 0);
    }
    if (static_cast<int>(j.chips.size()) != count) {
        state.SkipWithError("not every enclosure was found");
    }
    const auto rescans = static_cast<double>(state.iterations());
    const auto kEach = benchmark::Counter::kIsRate | benchmark::Counter::kInvert;
    state.counters["over_each"] = benchmark::Counter(rescans * count, kEach);
    state.counters["designed_s"] = std::chrono::duration<double>(counted.total).count() / rescans;
}

BENCHMARK(rescan)->Arg(1)->Arg(4)->Arg(16)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

BENCHMARK_MAIN();
