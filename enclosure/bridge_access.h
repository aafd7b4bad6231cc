// The twelve operations of the access library over any transport.
#pragma once

#include "enclosure/bridge_commands.h"
#include "enclosure/transport.h"

#include <cstdint>
#include <mutex>
#include <set>
#include <vector>

namespace enclosure {

// Operation by operation as in device/libkrraid.h, with the statuses named there. Any thread; an
// inner lock lets one operation at a time through. A handle stands for the connection that
// openConnection made: operations on one that is not open fail, and one whose bridge has gone is
// open no longer once an operation on it or the device list has shown that.
class bridge_access {
public:
    explicit bridge_access(transport& way) : way_(way), commands_(way) {}

    std::int32_t getDeviceList(void* list, std::int32_t* count);
    std::int32_t openConnection(std::uint32_t device);
    std::int32_t closeConnection(std::uint32_t device);
    std::int32_t krGetRaidInfo(std::uint32_t device, void* buffer, std::uint32_t length,
                               std::uint64_t lba, std::int32_t port, std::int32_t lba48);
    std::int32_t krGetRaidInfoFW(std::uint32_t device, void* buffer, std::uint32_t length,
                                 std::uint64_t lba, std::int32_t port);
    std::int32_t krSetRaidInfo(std::uint32_t device, const void* record, std::uint32_t length,
                               std::uint64_t lba, std::int32_t port, std::int32_t lba48);
    std::int32_t krSetRaidInfoFW(std::uint32_t device, const void* record, std::uint32_t length,
                                 std::uint64_t lba, std::int32_t port);
    std::int32_t krGetRebuildStatus(std::uint32_t device, void* status, std::uint32_t length);
    std::int32_t krGetDiskIdentify(std::uint32_t device, void* buffer, std::uint32_t length,
                                   std::int32_t port);
    std::int32_t krGetRegister(std::uint32_t device, void* buffer, std::uint32_t size,
                               std::uint32_t length, std::uint32_t address);
    std::int32_t krWarmBoot(std::uint32_t device);
    std::int32_t krFlushHDDCache(std::uint32_t device, std::int32_t port);

    // Connections that are open.
    std::size_t connections();

private:
    template<class Operation> std::int32_t on_device(std::uint32_t device, Operation operation);
    void forget(std::uint32_t device);
    void forget_all_but(const std::vector<std::uint32_t>& handles);

    std::mutex mutex_;
    transport& way_;
    bridge_commands commands_;
    std::set<std::uint32_t> open_;
};

} // namespace enclosure
