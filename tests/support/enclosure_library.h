// The access library of the enclosures in this process.
#pragma once

#include "device/access_library.h"
#include "enclosure/bridge_access.h"

// Only forwards, argument by argument. Any thread.
class enclosure_library : public access_library {
public:
    // `access` outlives it.
    explicit enclosure_library(enclosure::bridge_access& access) : access_(access) {}

    std::int32_t getDeviceList(void* list, std::int32_t* count) override;
    std::int32_t openConnection(std::uint32_t device) override;
    std::int32_t closeConnection(std::uint32_t device) override;
    std::int32_t krGetRaidInfo(std::uint32_t device, void* buffer, std::uint32_t length,
                               std::uint64_t lba, std::int32_t port, std::int32_t lba48) override;
    std::int32_t krGetRaidInfoFW(std::uint32_t device, void* buffer, std::uint32_t length,
                                 std::uint64_t lba, std::int32_t port) override;
    std::int32_t krSetRaidInfo(std::uint32_t device, const void* record, std::uint32_t length,
                               std::uint64_t lba, std::int32_t port, std::int32_t lba48) override;
    std::int32_t krSetRaidInfoFW(std::uint32_t device, const void* record, std::uint32_t length,
                                 std::uint64_t lba, std::int32_t port) override;
    std::int32_t krGetRebuildStatus(std::uint32_t device, void* status,
                                    std::uint32_t length) override;
    std::int32_t krGetDiskIdentify(std::uint32_t device, void* buffer, std::uint32_t length,
                                   std::int32_t port) override;
    std::int32_t krGetRegister(std::uint32_t device, void* buffer, std::uint32_t size,
                               std::uint32_t length, std::uint32_t address) override;
    std::int32_t krWarmBoot(std::uint32_t device) override;
    std::int32_t krFlushHDDCache(std::uint32_t device, std::int32_t port) override;

private:
    enclosure::bridge_access& access_;
};
