// Changing the array: create, delete, wipe, rebuild, restart.
#include <algorithm>
#include <array>

#include "device/access_library.h"
#include "model/krchip.h"
#include "model/krtool.h"
#include "model/window.h"
#include "util/functions.h"

namespace {

constexpr std::uint64_t reserved_raid0 = 32;      // sectors of the two disks together
constexpr std::uint64_t reserved_raid1 = 16;      // of each disk
constexpr std::uint64_t reserved_span = 65568;    // of the two disks together
constexpr std::uint64_t first_large = 1ULL << 32; // sectors; 2 TB
constexpr long long wiped_sectors = 64;           // at a disk's start

std::uint64_t array_capacity(int mode, std::uint64_t c0, std::uint64_t c1) {
    switch (mode) {
    case mode_raid0:
        return 2 * std::min(c0, c1) - reserved_raid0;
    case mode_raid1:
        return std::min(c0, c1) - reserved_raid1;
    default:
        return c0 + c1 - reserved_span;
    }
}

bool log_size(std::uint64_t capacity) {
    const bool large = capacity >= first_large;
    j.with.console.line(large ? "Kestrel : RAID size > 2TB" : "Kestrel : RAID size < 2TB");
    return large;
}

void log_large_flag(const raid_info& record) {
    j.with.console.line("Kestrel : " + inttostring(record.bytes[raid_info::large_offset]));
}

std::array<unsigned char, raid_time_size> present_time() {
    std::array<unsigned char, raid_time_size> time{};
    GetTimeString(time.data(), j.with.clock.now());
    return time;
}

} // namespace

bool krchip::create_raid(int mode, bool /*unused*/) {
    if (!is_array_mode(mode)) {
        return clear_raid();
    }
    const std::uint64_t capacity = array_capacity(mode, disks[0].capacity, disks[1].capacity);
    const bool large = log_size(capacity);
    stop_monitors();
    const auto time = present_time();
    const auto record = [&](int member, const krdisk& partner) {
        return create_raid_struct(mode, member, 0, 0, capacity, partner.identify_serial_raw.data(),
                                  partner.identify_model_raw.data(), large, time.data());
    };
    const raid_info record0 = record(0, disks[1]);
    const raid_info record1 = record(1, disks[0]);
    log_large_flag(record0);
    log_large_flag(record1);
    // The partition tables go, whatever becomes of the records.
    execute_set_raid_info({}, 0, false);
    execute_set_raid_info({}, 0, true);
    if (!write_records(record0, record1)) {
        return false;
    }
    commit({0, 1});
    return true;
}

bool krchip::clear_raid() {
    stop_monitors();
    // The halves of a mirror stay usable, each for itself.
    if (raid_mode != mode_raid1) {
        for (long long lba = 0; lba < wiped_sectors; ++lba) {
            execute_set_raid_info({}, lba, false);
            execute_set_raid_info({}, lba, true);
        }
    }
    if (!write_records({}, {})) {
        return false;
    }
    commit({0, 1});
    return true;
}

bool krchip::clear_disk(bool port) {
    stop_monitors();
    for (long long lba = 0; lba < wiped_sectors; ++lba) {
        execute_set_raid_info({}, lba, port);
    }
    if (!write_record({}, port)) {
        return false;
    }
    commit({port ? 1 : 0});
    return true;
}

bool krchip::rebuild(bool direction) {
    ctrller->disablegui(true);
    const std::size_t source_port = direction ? 1 : 0;
    const krdisk& source = disks[source_port];
    const krdisk& target = disks[1 - source_port];
    if (source.raid_mode != mode_raid1) {
        return false;
    }
    const auto time = present_time();
    const auto record = [&](std::size_t member, int flags, const krdisk& partner) {
        return create_raid_struct(mode_raid1, static_cast<int>(member), flags, 0,
                                  source.raid_capacity, partner.identify_serial_raw.data(),
                                  partner.identify_model_raw.data(),
                                  source.raid_info_raw.large_array(), time.data());
    };
    const raid_info of_source = record(source_port, raid_info::rebuild_bit, target);
    const raid_info of_target = record(1 - source_port, 0, source);
    // Reported as begun whatever these return; the chip has the last word.
    write_records(direction ? of_target : of_source, direction ? of_source : of_target);
    commit({0, 1});
    return true;
}

bool krchip::warm_boot() {
    stop_monitors();
    j.warm_boot_pending = true;
    {
        const lock_scope lock(j.records);
        connection_open = 0;
    }
    const lock_scope lock(j.mutex);
    return j.with.library.krWarmBoot(device) == 0;
}

bool krchip::write_record(const raid_info& record, bool port) {
    return execute_set_raid_info(record, static_cast<long long>(disks[port ? 1 : 0].metadata_lba()),
                                 port);
}

bool krchip::write_records(const raid_info& record0, const raid_info& record1) {
    const bool written0 = write_record(record0, false);
    const bool written1 = write_record(record1, true);
    return written0 && written1;
}

void krchip::commit(std::initializer_list<int> ports) {
    {
        const lock_scope lock(j.mutex);
        for (const int port : ports) {
            j.with.library.krFlushHDDCache(device, port);
        }
    }
    warm_boot();
}
