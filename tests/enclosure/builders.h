// Things that many tests make alike.
#pragma once

#include "enclosure/desk.h"
#include "enclosure/in_process_bench.h"

#include <cstdint>
#include <string>

inline enclosure::disk_label label_of(std::uint64_t sectors, const std::string& serial = "S-1") {
    enclosure::disk_label label;
    label.model = "Test Disk";
    label.serial = serial;
    label.sectors = sectors;
    return label;
}

inline enclosure::cabinet_settings usb_settings(const std::string& name) {
    enclosure::cabinet_settings settings;
    settings.name = name;
    return settings;
}

// Sector `lba` with a content that no other sector has.
inline enclosure::sector_data sector_number(std::uint64_t lba) {
    enclosure::sector_data data{};
    for (std::size_t i = 0; i < data.size(); ++i) {
        data[i] = static_cast<std::uint8_t>((lba + 1) * 131 + i * 7 + (lba >> 8));
    }
    return data;
}

// Puts an enclosure "box" with disks "a" and "b" of so many sectors on a bench, not plugged in.
inline void put_pair(enclosure::in_process_bench& bench, std::uint64_t first,
                     std::uint64_t second) {
    bench.add_enclosure(usb_settings("box"));
    bench.add_disk("a", label_of(first, "serial-a"));
    bench.add_disk("b", label_of(second, "serial-b"));
    bench.insert("box", 0, "a");
    bench.insert("box", 1, "b");
}
