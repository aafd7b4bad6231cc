// Bridges with two disks each, held in memory, as far as the access library shows them.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <vector>

#include "tests/support/library_call.h"
#include "tests/support/sectors.h"

struct memory_disk {
    sector_bytes identify{};
    std::uint64_t size = 0;                        // sectors; reading beyond fails
    std::map<std::uint64_t, sector_bytes> sectors; // what is not there is zero
    std::int32_t identify_status = 0;              // what IDENTIFY returns

    memory_disk() = default;
    explicit memory_disk(const identify_block& block);
    // The same with `metadata` in the sector 15 before the end.
    memory_disk(const identify_block& block, const metadata_sector& metadata);
};

struct rebuild_reading {
    std::int32_t status = 0;
    std::uint64_t end = 0;
    std::uint64_t current = 0;
};

struct memory_bridge {
    std::array<std::optional<memory_disk>, 2> disks;
    std::deque<rebuild_reading> readings; // the last one stays
    std::int32_t open_status = 0;
    bool open = false;
};

// Guarded by its owner.
class memory_enclosure {
public:
    // In the order of the device list.
    std::vector<std::pair<std::uint32_t, memory_bridge>> bridges;
    std::int32_t list_status = 0;
    std::optional<std::int32_t> list_count; // instead of the true one

    memory_bridge& bridge(std::uint32_t device);
    bool has(std::uint32_t device) const;
    memory_disk& disk(std::uint32_t device, int port);
    sector_bytes sector(std::uint32_t device, int port, std::uint64_t lba);

    library_answer answer(const library_call& call);

private:
    library_answer list() const;
    library_answer answer_disk(const library_call& call, memory_disk& disk) const;
};
