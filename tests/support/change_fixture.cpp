#include "tests/support/change_fixture.h"

#include <array>
#include <utility>

namespace {

constexpr std::uint32_t second_device = 0x12;
constexpr std::int32_t second_location = 0x14200000;

} // namespace

krchip& change_test::take_blank_chip(std::uint64_t size0, std::uint64_t size1, bool firewire) {
    return take_chip(with_data(memory_disk(identify_of("DISK A", "SN-A", size0))),
                     with_data(memory_disk(identify_of("DISK B", "SN-B", size1))), firewire);
}

krchip& change_test::take_array(int mode) {
    return take_chip(with_data(member_a(mode)), with_data(member_b(mode)));
}

krchip& change_test::take_two_chips() {
    take_blank_chip();
    attach(second_device, usb_bridge(1, 2, second_location), with_data(memory_disk(disk_a())),
           with_data(memory_disk(disk_b())));
    const gate_scope work(j.gate);
    j.add_controller(usb_identity(second_location), second_device);
    j.setup_controller_map();
    krchip& second = j.chips.back();
    second.connection_open = 1;
    second.retrievediskinformation();
    log.clear();
    return second;
}

void change_test::start_both_monitors(krchip& chip) {
    const gate_scope work(j.gate);
    chip.start_raid1_timer();
    chip.start_polling();
    pause.on_nth(2, [this] { threads.run_next(); });
    pause.on_nth(4, [this] { threads.run_next(); });
    log.clear();
}

std::string change_test::held(int port, std::uint64_t lba) {
    return hex_dump(library.sector(device, port, lba));
}

memory_disk with_data(memory_disk disk) {
    for (std::uint64_t lba = 0; lba <= 64; ++lba) {
        disk.sectors[lba] = data_sector();
    }
    return disk;
}

sector_bytes data_sector() {
    sector_bytes sector{};
    sector.fill(0x77);
    return sector;
}

memory_disk disk_with_28_bits(identify_block block) {
    block.lba48 = false;
    return memory_disk(block);
}

memory_disk disk_with_chs(identify_block block) {
    block.lba48 = false;
    block.lba = false;
    block.cylinders = 19;
    block.heads = 53;
    block.sectors_per_track = 2;
    return memory_disk(block);
}

std::string stamp_at(std::time_t now) {
    std::tm local{};
    localtime_r(&now, &local);
    std::array<char, 32> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y%m%d%H%M%S", &local);
    return {text.data(), length};
}

metadata_sector fresh_record(int mode, int member, std::uint64_t capacity,
                             const identify_block& partner) {
    metadata_sector record = metadata_of(mode, member, capacity, partner);
    record.time = stamp_at(scripted_clock::start);
    return record;
}
