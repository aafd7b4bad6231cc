// One call of the access library, as the test double sees it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/sectors.h"

struct library_call {
    std::string name; // "krGetRaidInfo"
    std::string text; // "krGetRaidInfo(0x11, 512, 1999, 0, 1)"
    std::uint32_t device = 0;
    std::int32_t port = 0;
    std::uint64_t lba = 0;
    std::uint32_t address = 0;          // of a register
    std::optional<sector_bytes> record; // what is to be written

    // True for the calls that are made one at a time.
    bool per_device() const;
    // True for the calls that write a sector, or fill a buffer.
    bool carries_bytes() const;
};

struct library_answer {
    std::int32_t status = 0;
    std::vector<unsigned char> bytes = {};  // copied to the caller's buffer; none leave it as it is
    std::optional<std::int32_t> count = {}; // of a device list
};

// A few words for the contents of a sector that is written: "zeros", "other", or of a record
// "KR", mode, member and flags, "KR 2 0 80".
std::string sketch(const sector_bytes& sector);
