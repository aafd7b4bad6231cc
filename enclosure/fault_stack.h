// The faults of one enclosure, stacked between its chip and its bays.
#pragma once

#include "enclosure/disk_io.h"
#include "enclosure/fault_filter.h"

#include <memory>
#include <utility>
#include <vector>

namespace enclosure {

// One thread at a time, that of the chip. Only add() throws.
class fault_stack final : public disk_io {
public:
    // `disks` outlives it.
    explicit fault_stack(disk_io& disks) : disks_(disks) {}

    // Puts a fault on top of those there are. Throws problem when the rule makes no sense or
    // there are 64 already.
    void add(const fault_rule& rule);
    void clear() { filters_.clear(); }
    std::size_t size() const { return filters_.size(); }

    bool perform(const io_request& request) override {
        return filters_.empty() ? disks_.perform(request) : filters_.back()->perform(request);
    }

    // True when some rule is about reading or writing these sectors of the port.
    bool concerns(int port, std::uint64_t lba, std::uint64_t count) const;

    // What requests met since the last call.
    hold_up take_hold_up() { return std::exchange(met_, {}); }

private:
    disk_io& disks_;
    hold_up met_;
    std::vector<std::unique_ptr<fault_filter>> filters_;
};

} // namespace enclosure
