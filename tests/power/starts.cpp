#include "tests/power/starts.h"

#include <algorithm>
#include <utility>

namespace {

constexpr const char* early = "20230101000000";
constexpr const char* late = "20230202000000";

identify_block label_of(std::size_t port) {
    return port == 0 ? first_disk() : second_disk();
}

std::string number_of_disk(std::size_t port) {
    return port == 0 ? "disk 1" : "disk 2";
}

metadata_sector record_for(int mode, std::size_t port, const char* time) {
    metadata_sector record =
        metadata_of(mode, static_cast<int>(port), usual_capacity(mode), label_of(1 - port));
    record.time = time;
    return record;
}

void put(disk_pair& disks, std::size_t port, const metadata_sector& record) {
    memory_disk& disk = disks.at(port).value();
    disk.sectors[record_address(disk)] = record.bytes();
}

void put_both(disk_pair& disks, int mode) {
    put(disks, 0, record_for(mode, 0, early));
    put(disks, 1, record_for(mode, 1, early));
}

// Two disks that hold the same data.
disk_pair equal_disks() {
    disk_pair disks = plain_disks();
    disks[1]->sectors = disks[0]->sectors;
    return disks;
}

metadata_sector lone_record(std::size_t port, const char* time) {
    metadata_sector record = record_for(2, port, time);
    record.partner_serial = std::string(20, '\0');
    record.partner_model = std::string(40, '\0');
    return record;
}

} // namespace

std::string name_of_kind(int mode) {
    switch (mode) {
    case 1:
        return "stripe";
    case 2:
        return "mirror";
    default:
        return "span";
    }
}

disk_start plain_start() {
    return {"no array", plain_disks()};
}

disk_start array_start(int mode) {
    disk_pair disks = mode == 2 ? equal_disks() : plain_disks();
    put_both(disks, mode);
    return {"a " + name_of_kind(mode), disks};
}

disk_start exchanged_start(int mode) {
    disk_start start = array_start(mode);
    for (std::size_t port = 0; port < start.disks.size(); ++port) {
        metadata_sector record = record_for(mode, port, early);
        record.member = static_cast<unsigned char>(1 - port);
        put(start.disks, port, record);
    }
    start.name += ", bays exchanged";
    return start;
}

disk_start smaller_start(int mode) {
    disk_start start = array_start(mode);
    for (std::size_t port = 0; port < start.disks.size(); ++port) {
        metadata_sector record = record_for(mode, port, early);
        record.capacity -= 1000;
        put(start.disks, port, record);
    }
    start.name = "a smaller " + name_of_kind(mode);
    return start;
}

disk_start half_start(int mode, std::size_t port) {
    disk_pair disks = plain_disks();
    put(disks, port, record_for(mode, port, early));
    return {"half a " + name_of_kind(mode) + " on " + number_of_disk(port), disks};
}

disk_start degraded_start(std::size_t port) {
    disk_pair disks = plain_disks();
    put(disks, port, lone_record(port, early));
    return {"a lone half on " + number_of_disk(port), disks};
}

disk_start mixed_start(std::size_t port) {
    disk_start start = half_start(1, 1 - port);
    put(start.disks, port, lone_record(port, late));
    start.name = "a lone half on " + number_of_disk(port) + " beside half a stripe";
    return start;
}

disk_start deserted_start(std::size_t port) {
    disk_pair disks = plain_disks();
    put(disks, port, record_for(2, port, early));
    return {"a half beside a new disk, on " + number_of_disk(port), disks};
}

disk_start alone_start(std::size_t port) {
    disk_start start = array_start(2);
    start.disks.at(1 - port).reset();
    start.name = "a half beside an empty bay, on " + number_of_disk(port);
    return start;
}

disk_start diverged_start(std::size_t later) {
    disk_pair disks = plain_disks();
    put(disks, later, lone_record(later, late));
    put(disks, 1 - later, record_for(2, 1 - later, early));
    return {"copies that differ, the later on " + number_of_disk(later), disks};
}

disk_start foreign_start() {
    disk_pair disks = plain_disks();
    for (std::size_t port = 0; port < disks.size(); ++port) {
        metadata_sector record = record_for(2, port, port == 0 ? early : late);
        record.partner_serial = stored_text("SN-ELSEWHERE", 20);
        put(disks, port, record);
    }
    return {"halves of two mirrors", disks};
}

disk_start copying_start(std::size_t source) {
    disk_pair disks = plain_disks();
    put_both(disks, 2);
    metadata_sector record = record_for(2, source, early);
    record.flags = 0x80;
    put(disks, source, record);
    return {"a copy from " + number_of_disk(source), disks};
}

disk_start copied_start(std::size_t source) {
    disk_start start = copying_start(source);
    const sector_bytes record = record_of(start.disks, 1);
    start.disks[1]->sectors = equal_disks()[1]->sectors;
    start.disks[1]->sectors[record_address(*start.disks[1])] = record;
    start.name = "an ended copy from " + number_of_disk(source);
    return start;
}
