// The chip's copy of a mirror without a limit, beside cp on the same files.
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "enclosure/in_process_bench.h"
#include "enclosure/numbers.h"

namespace {

namespace fs = std::filesystem;

constexpr std::uint64_t mebibyte = 1 << 20; // bytes
constexpr std::uint64_t sectors_of_mebibyte = mebibyte / enclosure::sector_size;

// A mirror of that size whose first disk holds data in its first part, on the disk of TMPDIR.
class mirror_to_copy {
public:
    mirror_to_copy(std::uint64_t sectors, std::uint64_t filled_mebibytes) {
        enclosure::cabinet_settings settings;
        settings.name = "box";
        bench_.add_enclosure(settings);
        for (const char* name : {"a", "b"}) {
            bench_.add_disk(name, enclosure::disk_label{name, name, sectors});
        }
        bench_.insert("box", 0, "a");
        fill(bench_.plug("box"), filled_mebibytes);
        bench_.unplug("box");
        bench_.insert("box", 1, "b");
    }

    // Copies all of it; seconds.
    double copy() {
        bench_.arrange("box", enclosure::scenario::rebuild);
        bench_.set_rate("box", enclosure::mirror_copy::unlimited);
        const auto began = std::chrono::steady_clock::now();
        bench_.plug("box");
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - began;
        bench_.unplug("box");
        return took.count();
    }

private:
    void fill(std::uint32_t handle, std::uint64_t mebibytes) {
        std::mt19937 numbers(1);
        std::vector<std::uint8_t> data(mebibyte);
        for (std::uint8_t& one : data) {
            one = static_cast<std::uint8_t>(numbers());
        }
        for (std::uint64_t piece = 0; piece < mebibytes; ++piece) {
            std::vector<std::uint8_t> write{0x8A, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
            enclosure::put_be(&write[2], piece * sectors_of_mebibyte, 8);
            enclosure::put_be(&write[10], sectors_of_mebibyte, 4);
            bench_.execute(handle, write, data, 0);
        }
    }

    enclosure::in_process_bench bench_;
};

// Of the source; nothing else below TMPDIR has its name.
fs::path image() {
    for (const auto& entry : fs::recursive_directory_iterator(fs::temp_directory_path())) {
        if (entry.path().filename() == "a.img") {
            return entry.path();
        }
    }
    return {};
}

// Seconds; nothing when it failed.
std::optional<double> cp(const std::string& sparse) {
    const fs::path copied = fs::temp_directory_path() / "copied.img";
    const std::string line =
        "cp --sparse=" + sparse + " '" + image().string() + "' '" + copied.string() + "'";
    const auto began = std::chrono::steady_clock::now();
    const int status = std::system(line.c_str()); // NOLINT: fixed words of our own
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - began;
    fs::remove(copied);
    return status == 0 ? std::optional(took.count()) : std::nullopt;
}

// Both by turns, on the same mirror.
void copy_of(benchmark::State& state, std::uint64_t sectors, std::uint64_t filled,
             const char* sparse) {
    mirror_to_copy mirror(sectors, filled);
    double theirs = 0;
    while (state.KeepRunning()) {
        const std::optional<double> took = cp(sparse);
        if (!took) {
            state.SkipWithError("cp failed");
            return;
        }
        theirs += *took;
        state.SetIterationTime(mirror.copy());
    }
    state.counters["cp_s"] = theirs / static_cast<double>(state.iterations());
}

void full_copy(benchmark::State& state) {
    constexpr std::uint64_t mebibytes = 1024;
    copy_of(state, mebibytes * sectors_of_mebibyte, mebibytes, "never");
}

void sparse_copy(benchmark::State& state) {
    constexpr std::uint64_t sectors = 15'628'053'168; // 8 TB
    constexpr std::uint64_t mebibytes = 256;
    copy_of(state, sectors, mebibytes, "always");
}

BENCHMARK(full_copy)->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(sparse_copy)->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
