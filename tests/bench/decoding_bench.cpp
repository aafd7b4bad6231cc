// What it costs to understand the records of two disks, and to put a chip into words.
#include <array>
#include <benchmark/benchmark.h>
#include <cstring>

#include "app/display_text.h"
#include "app/status_display.h"
#include "model/raid.h"
#include "tests/bench/bench_program.h"

namespace {

constexpr std::uint64_t sectors = 3'907'029'168;

std::array<raid_info, 2> records() {
    std::array<raid_info, 2> pair;
    for (int port = 0; port < 2; ++port) {
        std::array<unsigned char, serial_size> serial{};
        std::array<unsigned char, model_size> model{};
        std::array<unsigned char, raid_time_size> time{};
        std::memcpy(time.data(), "20260301120000", 14);
        pair[static_cast<std::size_t>(port)] = create_raid_struct(
            mode_raid1, port, 0, 0, sectors - 16, serial.data(), model.data(), false, time.data());
    }
    return pair;
}

krchip mirror() {
    krchip chip;
    const std::array<raid_info, 2> pair = records();
    for (std::size_t port = 0; port < pair.size(); ++port) {
        krdisk& disk = chip.disks[port];
        disk.present = 1;
        disk.capacity = sectors;
        disk.model = "EXAMPLE DISK 2000 GB";
        disk.serial = "EX-0123456789AB";
        disk.take_record(pair[port], true);
    }
    chip.read_raid_combined_info();
    return chip;
}

void decode_pair(benchmark::State& state) {
    krchip chip = mirror();
    const std::array<raid_info, 2> pair = records();
    while (state.KeepRunning()) {
        chip.disks[0].take_record(pair[0], true);
        chip.disks[1].take_record(pair[1], true);
        chip.read_raid_combined_info();
        benchmark::DoNotOptimize(chip.raid_valid);
    }
}

void compare_pair(benchmark::State& state) {
    std::array<raid_info, 2> pair = records();
    std::array<raid_info, 2> same = pair;
    while (state.KeepRunning()) {
        for (std::size_t port = 0; port < pair.size(); ++port) {
            benchmark::DoNotOptimize(pair[port].data());
            benchmark::DoNotOptimize(same[port].data());
            benchmark::DoNotOptimize(
                std::memcmp(pair[port].data(), same[port].data(), sector_size));
        }
    }
}

void status_display(benchmark::State& state) {
    const krchip chip = mirror();
    const keys_only texts;
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(status_view(&chip, true, texts));
    }
}

// Every text that such a chip has, once.
void text_conversions(benchmark::State& state) {
    const krchip chip = mirror();
    const keys_only texts;
    while (state.KeepRunning()) {
        for (const krdisk& disk : chip.disks) {
            benchmark::DoNotOptimize(device_text(disk.model));
            benchmark::DoNotOptimize(device_text(disk.serial));
            benchmark::DoNotOptimize(size_text(disk.capacity, true));
            benchmark::DoNotOptimize(mode_name(disk.raid_mode, texts));
        }
        benchmark::DoNotOptimize(capacity_text(chip.raid_capacity, true));
        benchmark::DoNotOptimize(mode_name(chip.raid_mode, texts));
    }
}

BENCHMARK(decode_pair);
BENCHMARK(compare_pair);
BENCHMARK(status_display);
BENCHMARK(text_conversions);

} // namespace
