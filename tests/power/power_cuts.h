// What reached the disks during a change, and what a power cut may leave of it.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "tests/power/disk_pair.h"
#include "tests/support/scripted_library.h"

struct disk_event {
    bool is_flush = false; // else a sector is written
    std::size_t port = 0;
    std::uint64_t lba = 0;
    sector_bytes data{};
};

using disk_events = std::vector<disk_event>;

// Writes down every write and flush as long as it lives, in the place of the library's other hook.
class event_recorder {
public:
    explicit event_recorder(scripted_library& library);
    ~event_recorder();
    event_recorder(const event_recorder&) = delete;
    event_recorder& operator=(const event_recorder&) = delete;

    const disk_events& events() const { return events_; }

private:
    scripted_library& library_;
    disk_events events_;
};

struct power_cut {
    disk_pair disks;
    bool torn = false; // a record consists of the first half of one version and the rest of another
};

// Visits what the disks may hold when the power goes before, within and after `events`. After each
// of them, of the first sector and the record of each disk every version since its last flush may
// be the one that lasts, in every combination; a record may also be torn after 256 bytes. All
// other sectors hold what was written last.
void for_each_cut(const disk_pair& start, const disk_events& events,
                  const std::function<void(const power_cut&)>& visit);
