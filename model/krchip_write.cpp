// Writing single sectors: verified, and the small changes made of them.
#include <algorithm>
#include <array>

#include "device/access_library.h"
#include "model/exit_gate.h"
#include "model/krchip.h"
#include "model/krtool.h"

namespace {

constexpr auto sector_length = static_cast<std::uint32_t>(sector_size);

// A read-back that is said to have succeeded but filled nothing in must not look like a match.
raid_info complement(raid_info info) {
    for (unsigned char& byte : info.bytes) {
        byte = static_cast<unsigned char>(~byte);
    }
    return info;
}

} // namespace

bool krchip::firewire_form(bool port) const {
    return identity.firewire && disks[port ? 1 : 0].address_mode == address_lba48;
}

std::int32_t krchip::call_read(raid_info& sector, std::uint64_t lba, bool port) const {
    if (firewire_form(port)) {
        return j.with.library.krGetRaidInfoFW(device, sector.data(), sector_length, lba,
                                              port ? 1 : 0);
    }
    const std::int32_t lba48 = disks[port ? 1 : 0].address_mode == address_lba48 ? 1 : 0;
    return j.with.library.krGetRaidInfo(device, sector.data(), sector_length, lba, port ? 1 : 0,
                                        lba48);
}

std::int32_t krchip::call_write(const raid_info& sector, std::uint64_t lba, bool port) const {
    if (firewire_form(port)) {
        return j.with.library.krSetRaidInfoFW(device, sector.data(), sector_length, lba,
                                              port ? 1 : 0);
    }
    const std::int32_t lba48 = disks[port ? 1 : 0].address_mode == address_lba48 ? 1 : 0;
    return j.with.library.krSetRaidInfo(device, sector.data(), sector_length, lba, port ? 1 : 0,
                                        lba48);
}

std::int32_t krchip::read_sector(raid_info& sector, std::uint64_t lba, bool port) const {
    const lock_scope lock(j.mutex);
    return call_read(sector, lba, port);
}

bool krchip::execute_set_raid_info(raid_info info, long long lba, bool port) {
    const auto address = static_cast<std::uint64_t>(lba);
    const lock_scope lock(j.mutex);
    const write_in_flight writing(j.with.exit);
    if (!writing || call_write(info, address, port) != 0) {
        return false;
    }
    raid_info read_back = complement(info);
    if (call_read(read_back, address, port) != 0) {
        return false;
    }
    return read_back.bytes == info.bytes;
}

bool krchip::raid_degrade(bool port) {
    krdisk& disk = disks[port ? 1 : 0];
    std::array<unsigned char, raid_time_size> time{};
    GetTimeString(time.data(), j.with.clock.now());
    const std::array<unsigned char, serial_size> no_serial{};
    const std::array<unsigned char, model_size> no_model{};
    const raid_info record =
        create_raid_struct(mode_raid1, port ? 1 : 0, 0, 0, disk.raid_capacity, no_serial.data(),
                           no_model.data(), disk.raid_info_raw.large_array(), time.data());
    const bool written =
        execute_set_raid_info(record, static_cast<long long>(disk.metadata_lba()), port);
    {
        const lock_scope lock(j.mutex);
        j.with.library.krFlushHDDCache(device, port ? 1 : 0);
    }
    const lock_scope lock(j.records);
    disk.raid_time = time;
    return written;
}

void krchip::clear_rebuild(bool port) {
    krdisk& disk = disks[port ? 1 : 0];
    if (disk.present == 0) {
        return;
    }
    const std::uint64_t lba = disk.metadata_lba();
    // A read that fails leaves what is known of the sector, which is then written first.
    raid_info sector = disk.raid_info_raw;
    {
        // Not the choice of the other reads: either condition alone takes the FireWire form.
        const lock_scope lock(j.mutex);
        if (identity.firewire || disk.address_mode == address_lba48) {
            j.with.library.krGetRaidInfoFW(device, sector.data(), sector_length, lba, port ? 1 : 0);
        } else {
            j.with.library.krGetRaidInfo(device, sector.data(), sector_length, lba, port ? 1 : 0,
                                         0);
        }
    }
    sector.clear_rebuild_flags();
    execute_set_raid_info(sector, static_cast<long long>(lba), port);
    {
        const lock_scope lock(j.records);
        disk.raid_info_raw.clear_rebuild_flags();
    }
    // The cached sector is written last and is what the disk keeps.
    execute_set_raid_info(disk.raid_info_raw, static_cast<long long>(lba), port);
    const lock_scope lock(j.mutex);
    j.with.library.krFlushHDDCache(device, port ? 1 : 0);
}
