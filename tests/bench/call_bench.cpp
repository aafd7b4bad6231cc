// One call of the access library over the session bus, beside an empty one to the same service.
#include <array>
#include <benchmark/benchmark.h>
#include <sdbus-c++/sdbus-c++.h>

#include "device/linked_library.h"
#include "model/rescan.h"
#include "tests/bench/bench_program.h"

namespace {

void library_call(benchmark::State& state) {
    the_desk().have(1);
    DeviceAdded(nullptr, 0);
    const std::uint32_t device = j.chips.front().device;
    linked_library library;
    std::array<unsigned char, access_library::sector> answer{};
    while (state.KeepRunning()) {
        if (library.krGetRegister(device, answer.data(), access_library::sector, 4,
                                  access_library::presence_port0) != 0) {
            state.SkipWithError("the bridge does not answer");
        }
    }
}

void empty_call(benchmark::State& state) {
    the_desk().have(1);
    const auto way = sdbus::createSessionBusConnection();
    const auto service =
        sdbus::createProxy(*way, "org.kestrelraid.Enclosure1", "/org/kestrelraid/Enclosure1");
    while (state.KeepRunning()) {
        service->callMethod("Ping").onInterface("org.freedesktop.DBus.Peer");
    }
}

BENCHMARK(library_call)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(empty_call)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace
