// What a change of the array will do to each disk, worked out before anybody is asked.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "device/volume_uses.h"
#include "model/raid.h"
#include "util/library.h"

class krchip;

enum class array_change { create, clear_array, clear_disk0, clear_disk1, rebuild0to1, rebuild1to0 };

enum class disk_fate {
    untouched,   // nothing is written
    all_lost,    // its first sectors go, and with them the way to its data
    keeps_data,  // only its RAID record is erased
    read,        // copied from; only its RAID record is rewritten
    overwritten, // copied to, from its first sector on
};

// One disk as it is now, and what becomes of it. Texts are bytes of the disk, any values.
struct planned_disk {
    bool present = false;
    std::string model;
    std::string serial;
    std::uint64_t capacity = 0; // sectors
    std::array<unsigned char, model_size> identify_model_raw{};
    std::array<unsigned char, serial_size> identify_serial_raw{};
    disk_fate fate = disk_fate::untouched;

    // What the user has to know of a disk that is written to.
    bool larger_than_used = false;     // the record lies inside a part that others may use
    bool copy_unfinished = false;      // a copy onto it still runs
    bool foreign_sectors = false;      // its sectors do not have 512 bytes
    bool record_inside_mirror = false; // the copy reaches over the place of the record
    std::uint64_t missing_sectors = 0; // too small by so many for what is copied to it

    bool operator==(const planned_disk& other) const = default;
};

struct change_plan {
    array_change what = array_change::create;
    int mode = 0;                      // of the array to create, as asked for
    bool has_chip = false;             // false: there is nothing to change
    controller_t controller;           // whose disks they are
    std::string enclosure;             // its name, as the user knows it
    std::array<planned_disk, 2> disks; // index = port
    std::vector<volume_use> uses;      // of its volume; any of them forbids the change

    // Equal plans mean the same change of the same disks.
    bool operator==(const change_plan& other) const = default;
};

// The plan for a chip, or for none. Creating with a mode that is no array is a plan to delete,
// as krchip::create_raid carries it out. `uses`: of the chip's volume. With the records held, or
// for a copy; any thread.
change_plan plan_change(array_change what, int mode, const krchip* chip,
                        const std::string& enclosure, const std::vector<volume_use>& uses);

// Whether the plan made anew for `chip`, whose volume is used like this now, is the one that was
// confirmed. As plan_change.
bool still_holds(const change_plan& confirmed, const krchip* chip,
                 const std::vector<volume_use>& uses);
