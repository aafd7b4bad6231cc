#include "tests/support/fixture.h"

#include <utility>

namespace {

constexpr std::uint64_t usual_size = 2014;
constexpr std::uint64_t usual_array = 1900;

memory_disk member(int mode, int port, const identify_block& disk, const identify_block& partner,
                   const metadata_sector* instead) {
    return memory_disk(disk, instead != nullptr ? *instead
                                                : metadata_of(mode, port, usual_array, partner));
}

} // namespace

void model_test::SetUp() {
    world().reset();
}

void model_test::TearDown() {
    world().reset();
}

void model_test::attach(std::uint32_t handle, const registered_bridge& bridge,
                        std::optional<memory_disk> disk0, std::optional<memory_disk> disk1) {
    registry.put(handle, bridge);
    library.add_bridge(handle, std::move(disk0), std::move(disk1));
}

krchip& model_test::take_chip(std::optional<memory_disk> disk0, std::optional<memory_disk> disk1,
                              bool firewire) {
    const controller_t identity = firewire ? firewire_identity(0xABCD) : usb_identity(0x14100000);
    attach(device, firewire ? firewire_bridge(0xABCD) : usb_bridge(1, 2, 0x14100000),
           std::move(disk0), std::move(disk1));
    const gate_scope work(j.gate);
    j.add_controller(identity, device);
    {
        const lock_scope lock(j.records);
        j.current = identity;
    }
    j.setup_controller_map();
    krchip& chip = j.chips.back();
    chip.connection_open = 1;
    chip.retrievediskinformation();
    chip.read_raid_info();
    log.clear();
    return chip;
}

void model_test::forget_all() {
    library.with_bridges([](memory_enclosure& all) { all.bridges.clear(); });
    const gate_scope work(j.gate);
    const lock_scope lock(j.records);
    j.chips.clear();
    j.current.clear();
}

void model_test::let_the_window_select() {
    view.on("select_first_controller", [this] {
        if (j.controller_map.empty() || j.chips.empty()) {
            view.update_raid_information();
            return;
        }
        const gate_scope work(j.gate);
        const auto first = static_cast<std::size_t>(j.controller_map.front().second);
        {
            const lock_scope lock(j.records);
            j.current = j.chips.at(first).identity;
        }
        j.selected()->select_chip();
        view.update_raid_information();
    });
}

identify_block disk_a() {
    return identify_of("DISK A", "SN-A", usual_size);
}

identify_block disk_b() {
    return identify_of("DISK B", "SN-B", usual_size);
}

controller_t usb_identity(std::int32_t location) {
    controller_t identity;
    identity.vendor_id = 1;
    identity.product_id = 2;
    identity.location_id = static_cast<std::uint64_t>(static_cast<std::int64_t>(location));
    identity.id = identity.location_id;
    return identity;
}

controller_t firewire_identity(std::uint64_t guid) {
    controller_t identity;
    identity.firewire = true;
    identity.guid = guid;
    identity.id = guid;
    return identity;
}

memory_disk member_a(int mode, const metadata_sector* instead) {
    return member(mode, 0, disk_a(), disk_b(), instead);
}

memory_disk member_b(int mode, const metadata_sector* instead) {
    return member(mode, 1, disk_b(), disk_a(), instead);
}
