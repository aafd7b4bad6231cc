#include "tests/support/memory_enclosure.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace {

constexpr std::int32_t no_such_device = -19;
constexpr std::int32_t no_such_disk = -1;
constexpr std::int32_t no_such_sector = 5;

std::vector<unsigned char> bytes_of(const sector_bytes& sector) {
    return {sector.begin(), sector.end()};
}

library_answer rebuild_status(memory_bridge& bridge) {
    if (bridge.readings.empty()) {
        return {1};
    }
    const rebuild_reading now = bridge.readings.front();
    if (bridge.readings.size() > 1) {
        bridge.readings.pop_front();
    }
    library_answer answer{now.status};
    for (const std::uint64_t value : {now.end, now.current}) {
        for (int i = 0; i < 6; ++i) {
            answer.bytes.push_back(static_cast<unsigned char>(value >> (8 * i)));
        }
    }
    return answer;
}

library_answer presence(const library_call& call, const memory_bridge& bridge) {
    const std::size_t port = call.address == 0x7095 ? 0 : 1;
    const unsigned char there = bridge.disks.at(port) ? 0x13 : 0;
    return {0, {there, 0xEE, 0xEE, 0xEE}};
}

} // namespace

memory_disk::memory_disk(const identify_block& block)
    : identify(block.bytes()), size(block.lba48 ? block.sectors48 : block.sectors28) {}

memory_disk::memory_disk(const identify_block& block, const metadata_sector& metadata)
    : memory_disk(block) {
    sectors[size - 15] = metadata.bytes();
}

bool memory_enclosure::has(std::uint32_t device) const {
    return std::any_of(bridges.begin(), bridges.end(),
                       [&](const auto& entry) { return entry.first == device; });
}

memory_bridge& memory_enclosure::bridge(std::uint32_t device) {
    for (auto& [handle, bridge] : bridges) {
        if (handle == device) {
            return bridge;
        }
    }
    throw std::out_of_range("no such bridge in the enclosure");
}

memory_disk& memory_enclosure::disk(std::uint32_t device, int port) {
    return bridge(device).disks.at(static_cast<std::size_t>(port)).value();
}

sector_bytes memory_enclosure::sector(std::uint32_t device, int port, std::uint64_t lba) {
    return disk(device, port).sectors[lba];
}

library_answer memory_enclosure::list() const {
    library_answer answer{list_status};
    for (const auto& [device, unused] : bridges) {
        std::array<unsigned char, 8> entry{};
        std::memcpy(entry.data(), &device, sizeof device);
        std::fill(entry.begin() + 4, entry.end(), static_cast<unsigned char>(0xEE));
        answer.bytes.insert(answer.bytes.end(), entry.begin(), entry.end());
    }
    answer.count = list_count.value_or(static_cast<std::int32_t>(bridges.size()));
    return answer;
}

library_answer memory_enclosure::answer(const library_call& call) {
    if (call.name == "getDeviceList") {
        return list();
    }
    if (!has(call.device)) {
        return {no_such_device};
    }
    memory_bridge& target = bridge(call.device);
    if (call.name == "openConnection" || call.name == "closeConnection") {
        target.open = call.name == "openConnection";
        return {target.open ? target.open_status : 0};
    }
    if (call.name == "krGetRebuildStatus") {
        return rebuild_status(target);
    }
    if (call.name == "krGetRegister") {
        return presence(call, target);
    }
    if (call.name == "krWarmBoot" || call.name == "krFlushHDDCache") {
        return {};
    }
    auto& bay = target.disks.at(static_cast<std::size_t>(call.port));
    return bay ? answer_disk(call, *bay) : library_answer{no_such_disk};
}

library_answer memory_enclosure::answer_disk(const library_call& call, memory_disk& disk) const {
    if (call.name == "krGetDiskIdentify") {
        return {disk.identify_status, bytes_of(disk.identify)};
    }
    if (call.lba >= disk.size) {
        return {no_such_sector};
    }
    if (call.record) {
        disk.sectors[call.lba] = *call.record;
        return {};
    }
    const auto found = disk.sectors.find(call.lba);
    return {0, bytes_of(found == disk.sectors.end() ? sector_bytes{} : found->second)};
}
