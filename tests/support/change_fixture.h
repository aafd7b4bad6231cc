// The ground that the tests of array changes stand on.
#pragma once

#include <cstdint>
#include <ctime>
#include <optional>
#include <string>

#include "tests/support/fixture.h"

// Disks come with data on them, so that a sector that was not written shows.
class change_test : public model_test {
protected:
    // Runs `operation` as the program does, and looks at the library mutex afterwards.
    template<class Operation> static bool perform(Operation operation) {
        const gate_scope work(j.gate);
        const bool done = operation();
        EXPECT_FALSE(j.mutex.held_here());
        return done;
    }

    // The usual chip with the disks A and B of these sizes, and no array on them.
    krchip& take_blank_chip(std::uint64_t size0 = 2014, std::uint64_t size1 = 2014,
                            bool firewire = false);
    // The usual chip with an array of `mode` over the usual disks.
    krchip& take_array(int mode);
    // The usual chip, which is current, and behind it in the list one with the handle 0x12.
    // Returns the second.
    krchip& take_two_chips();

    // Starts the timer and the poller of `chip`. Their threads run, and end, in the second and
    // in the fourth pause from now on. The log is empty afterwards.
    void start_both_monitors(krchip& chip);

    // The sectors of the usual chip, in hexadecimal digits.
    std::string held(int port, std::uint64_t lba);
};

inline constexpr std::uint64_t usual_metadata = 1999; // where disks of the usual size keep theirs

// Fills LBAs 0 to 64 with data.
memory_disk with_data(memory_disk disk);
// One such sector.
sector_bytes data_sector();

// The same disk without 48-bit addressing, and without LBA; both of 2014 sectors.
memory_disk disk_with_28_bits(identify_block block);
memory_disk disk_with_chs(identify_block block);

// The 14 digits of local time that records carry.
std::string stamp_at(std::time_t now);
// The record of `member` of an array of `mode`, beside `partner`, made at the tests' usual time.
metadata_sector fresh_record(int mode, int member, std::uint64_t capacity,
                             const identify_block& partner);
