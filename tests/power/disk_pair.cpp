#include "tests/power/disk_pair.h"

#include <algorithm>
#include <utility>

#include "tests/support/sectors.h"

namespace {

constexpr std::uint64_t first_size = 70'000;
constexpr std::uint64_t second_size = 80'000;
constexpr std::size_t time_offset = 480;
constexpr std::size_t time_size = 16;

memory_disk disk_with_data(const identify_block& who, unsigned char mark) {
    memory_disk disk(who);
    sector_bytes data{};
    const auto put = [&](std::uint64_t lba) {
        data.fill(mark);
        data[0] = static_cast<unsigned char>(lba);
        disk.sectors[lba] = data;
    };
    for (std::uint64_t lba = 0; lba <= 64; ++lba) {
        put(lba);
    }
    put(5000);
    put(first_size - 17);
    return disk;
}

bool has_signature(const sector_bytes& sector) {
    return sector[0] == 'K' && sector[1] == 'R';
}

bool is_empty(const sector_bytes& sector) {
    return sector == sector_bytes{};
}

} // namespace

identify_block first_disk() {
    return identify_of("DISK A", "SN-A", first_size);
}

identify_block second_disk() {
    return identify_of("DISK B", "SN-B", second_size);
}

std::uint64_t usual_capacity(int mode) {
    switch (mode) {
    case 1:
        return 2 * first_size - 32;
    case 2:
        return first_size - 16;
    default:
        return first_size + second_size - 65568;
    }
}

disk_pair plain_disks() {
    return {disk_with_data(first_disk(), 0xA0), disk_with_data(second_disk(), 0xB0)};
}

std::uint64_t record_address(const memory_disk& disk) {
    return disk.size - 15;
}

sector_bytes sector_of(const memory_disk& disk, std::uint64_t lba) {
    const auto found = disk.sectors.find(lba);
    return found == disk.sectors.end() ? sector_bytes{} : found->second;
}

sector_bytes record_of(const disk_pair& disks, std::size_t port) {
    const memory_disk& disk = disks.at(port).value();
    return sector_of(disk, record_address(disk));
}

void drop_empty_sectors(disk_pair& disks) {
    for (auto& disk : disks) {
        if (disk) {
            std::erase_if(disk->sectors, [](const auto& entry) { return is_empty(entry.second); });
        }
    }
}

disk_contents contents_of(disk_pair disks) {
    drop_empty_sectors(disks);
    disk_contents contents;
    for (std::size_t port = 0; port < disks.size(); ++port) {
        if (disks[port]) {
            contents[port] = std::move(disks[port]->sectors);
        }
    }
    return contents;
}

disk_contents timeless_contents_of(disk_pair disks) {
    using stamp = std::array<unsigned char, time_size>;
    std::optional<stamp> first;
    for (auto& disk : disks) {
        if (!disk || !has_signature(sector_of(*disk, record_address(*disk)))) {
            continue;
        }
        unsigned char* const time = disk->sectors[record_address(*disk)].data() + time_offset;
        stamp found{};
        std::copy_n(time, time_size, found.begin());
        const bool another = first && *first != found;
        first = first.value_or(found);
        std::fill_n(time, time_size, static_cast<unsigned char>(another ? 1 : 0));
    }
    return contents_of(std::move(disks));
}
