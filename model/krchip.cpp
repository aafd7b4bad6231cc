// Reading a chip: who is on each port, and what their metadata says.
#include "model/krchip.h"

#include <array>

#include "device/access_library.h"
#include "device/registry.h"
#include "model/krtool.h"
#include "util/functions.h"

namespace {

constexpr std::size_t signature_offset = 510; // of an IDENTIFY block
constexpr unsigned char signature = 0xA5;

using block = std::array<char, sector_size>;

struct identify_answer {
    block data{};
    std::int32_t status = -1;

    // A positive status marks the disk present without telling who it is.
    bool present() const { return status >= 0 && has_signature(); }
    bool complete() const { return status == 0 && has_signature(); }

private:
    bool has_signature() const {
        return static_cast<unsigned char>(data[signature_offset]) == signature;
    }
};

using both_answers = std::array<identify_answer, 2>;

// The chip wants its presence registers read, with time in between, before it answers IDENTIFY.
void wake_ports(std::uint32_t device) {
    constexpr std::uint32_t length = 4;
    block unused{};
    const lock_scope lock(j.mutex);
    j.with.library.krGetRegister(device, unused.data(), sector_size, length,
                                 access_library::presence_port0);
    j.with.pause.sleep(std::chrono::seconds(2));
    j.with.library.krGetRegister(device, unused.data(), sector_size, length,
                                 access_library::presence_port1);
}

identify_answer identify(std::uint32_t device, std::int32_t port) {
    identify_answer answer;
    const lock_scope lock(j.mutex);
    answer.status = j.with.library.krGetDiskIdentify(device, answer.data.data(), sector_size, port);
    return answer;
}

bool same_disk(const krdisk& known, const identify_answer& answer) {
    krdisk found;
    if (answer.complete()) {
        found.initialize(answer.data.data());
    }
    return answer.present() == (known.present != 0) &&
           found.identify_model_raw == known.identify_model_raw &&
           found.identify_serial_raw == known.identify_serial_raw &&
           found.capacity == known.capacity;
}

} // namespace

int krchip::retrievediskinformation() {
    wake_ports(device);
    both_answers answers;
    for (std::size_t port = 0; port < answers.size(); ++port) {
        answers[port] = identify(device, static_cast<std::int32_t>(port));
        if (answers[port].complete()) {
            writeintofile("disk " + inttostring(port) + " gave a response");
            const lock_scope lock(j.records);
            disks[port].initialize(answers[port].data.data());
        }
    }
    const lock_scope lock(j.records);
    for (std::size_t port = 0; port < answers.size(); ++port) {
        if (answers[port].present()) {
            disks[port].present = 1;
        }
    }
    return 1;
}

bool krchip::same_disks_answer() const {
    wake_ports(device);
    const both_answers answers = {identify(device, 0), identify(device, 1)};
    return same_disk(disks[0], answers[0]) && same_disk(disks[1], answers[1]);
}

void krchip::read_raid_info_disk(bool port) {
    krdisk& disk = disks[port ? 1 : 0];
    if (disk.present == 0) {
        return;
    }
    raid_info sector;
    const std::int32_t status = read_sector(sector, disk.metadata_lba(), port);
    const bool valid = status == 0 && sector.has_signature();
    {
        const lock_scope lock(j.records);
        disk.take_record(sector, valid);
    }
    if (!valid) {
        writeintofile("disk port no " + inttostring(port ? 1 : 0) + " mode made zero");
    }
}

void krchip::read_raid_info() {
    read_raid_info_disk(false);
    read_raid_info_disk(true);
    read_raid_combined_info();
}

void krchip::select_chip() {
    if (disks[0].raid1_orphan != 0) {
        raid_degrade(false);
    }
    if (disks[1].raid1_orphan != 0) {
        raid_degrade(true);
    }
    const auto mirror_member = [](const krdisk& disk) {
        return disk.present != 0 && disk.raid_mode == mode_raid1;
    };
    if (mirror_member(disks[0]) || mirror_member(disks[1])) {
        start_raid1_timer();
    }
    if (raid_valid != 0 && disks[0].rebuild_mark + disks[1].rebuild_mark == 1) {
        const lock_scope lock(j.records);
        rebuild_pending = 1;
        polling = true;
    }
}

std::string krchip::get_raid_name() const {
    constexpr int levels = 3;
    device_registry& registry = j.with.registry;
    registry_entry entry = registry.entry_of(device);
    for (int level = 0; level < levels; ++level) {
        entry = registry.first_child(entry);
    }
    return registry.name(entry);
}
