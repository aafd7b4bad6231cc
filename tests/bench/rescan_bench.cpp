// A rescan of n enclosures through the bundled access library and the session bus, without the
// designed pauses: what the program adds to them.
#include <benchmark/benchmark.h>
#include <chrono>

#include "model/rescan.h"
#include "tests/bench/bench_program.h"

namespace {

void rescan(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    the_desk().have(count);
    the_pauses().total = {};
    while (state.KeepRunning()) {
        DeviceAdded(nullptr, 0);
    }
    if (static_cast<int>(j.chips.size()) != count) {
        state.SkipWithError("not every enclosure was found");
    }
    const auto rescans = static_cast<double>(state.iterations());
    const auto kEach = benchmark::Counter::kIsRate | benchmark::Counter::kInvert;
    state.counters["over_each"] = benchmark::Counter(rescans * count, kEach);
    state.counters["designed_s"] =
        std::chrono::duration<double>(the_pauses().total).count() / rescans;
}

BENCHMARK(rescan)
    ->Arg(1)
    ->Arg(4)
    ->Arg(16)
    ->Arg(64)
    ->Arg(256)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace
