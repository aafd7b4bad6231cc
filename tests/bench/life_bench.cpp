// A mirror's life, from its making to its end, beside the pauses that it is designed with.
#include <benchmark/benchmark.h>
#include <chrono>
#include <functional>

#include "model/rescan.h"
#include "tests/bench/bench_program.h"

namespace {

// Changes the array, and reads it again when the chip is back.
bool change(const std::function<bool(krchip& chip)>& operation) {
    const std::uint32_t former = j.chips.front().device;
    bool done = false;
    {
        const gate_scope gate(j.gate);
        done = operation(j.chips.front());
    }
    the_desk().await_return_of(former);
    DeviceAdded(nullptr, 0);
    return done && j.chips.size() == 1;
}

void life_of_a_mirror(benchmark::State& state) {
    the_desk().have(1);
    DeviceAdded(nullptr, 0);
    the_pauses().total = {};
    while (state.KeepRunning()) {
        const bool lived =
            change([](krchip& chip) { return chip.clear_raid(); }) &&
            change([](krchip& chip) { return chip.create_raid(mode_raid1, false); }) &&
            change([](krchip& chip) { return chip.rebuild(false); });
        if (!lived) {
            state.SkipWithError("a step failed");
        }
    }
    state.counters["designed_s"] = std::chrono::duration<double>(the_pauses().total).count() /
                                   static_cast<double>(state.iterations());
}

BENCHMARK(life_of_a_mirror)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
