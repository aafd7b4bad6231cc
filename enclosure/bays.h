// The two bays of an enclosure.
#pragma once

#include "enclosure/disk.h"
#include "enclosure/disk_io.h"

#include <array>
#include <memory>

namespace enclosure {

// Where every request to a disk ends.
class bays final : public disk_io {
public:
    // Empty when there is no disk. The port is 0 or 1.
    const std::shared_ptr<disk>& at(int port) const {
        return disks_[static_cast<std::size_t>(port)];
    }
    void insert(int port, std::shared_ptr<disk> what) {
        disks_[static_cast<std::size_t>(port)] = std::move(what);
    }
    std::shared_ptr<disk> pull(int port) {
        return std::move(disks_[static_cast<std::size_t>(port)]);
    }

    bool perform(const io_request& request) override {
        const std::shared_ptr<disk>& there = at(request.port);
        return there && there->perform(request);
    }

private:
    std::array<std::shared_ptr<disk>, ports> disks_;
};

} // namespace enclosure
