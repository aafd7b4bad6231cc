// The access library as an interface, operation by operation as in device/libkrraid.h.
#pragma once

#include <cstdint>

// All operations block until the chip has answered or its time-out has passed. The model calls
// the per-device ones with krtool::mutex held; getDeviceList, openConnection and closeConnection
// of the scan come without it, so an implementation brings its own lock. Status: 0 is success.
class access_library {
public:
    static constexpr std::uint32_t list_size = 2048; // bytes of a device list
    static constexpr std::uint32_t list_entry = 8;   // bytes of an entry of it
    static constexpr std::int32_t list_most = 256;   // entries
    static constexpr std::uint32_t sector = 512;     // bytes
    static constexpr std::uint32_t status_size = 12; // bytes of a rebuild status

    static constexpr std::uint32_t presence_port0 = 0x7095; // registers
    static constexpr std::uint32_t presence_port1 = 0x709D;

    virtual ~access_library() = default;

    virtual std::int32_t getDeviceList(void* list, std::int32_t* count) = 0;
    virtual std::int32_t openConnection(std::uint32_t device) = 0;
    virtual std::int32_t closeConnection(std::uint32_t device) = 0;
    virtual std::int32_t krGetRaidInfo(std::uint32_t device, void* buffer, std::uint32_t length,
                                       std::uint64_t lba, std::int32_t port,
                                       std::int32_t lba48) = 0;
    virtual std::int32_t krGetRaidInfoFW(std::uint32_t device, void* buffer, std::uint32_t length,
                                         std::uint64_t lba, std::int32_t port) = 0;
    virtual std::int32_t krSetRaidInfo(std::uint32_t device, const void* record,
                                       std::uint32_t length, std::uint64_t lba, std::int32_t port,
                                       std::int32_t lba48) = 0;
    virtual std::int32_t krSetRaidInfoFW(std::uint32_t device, const void* record,
                                         std::uint32_t length, std::uint64_t lba,
                                         std::int32_t port) = 0;
    virtual std::int32_t krGetRebuildStatus(std::uint32_t device, void* status,
                                            std::uint32_t length) = 0;
    virtual std::int32_t krGetDiskIdentify(std::uint32_t device, void* buffer, std::uint32_t length,
                                           std::int32_t port) = 0;
    virtual std::int32_t krGetRegister(std::uint32_t device, void* buffer, std::uint32_t size,
                                       std::uint32_t length, std::uint32_t address) = 0;
    virtual std::int32_t krWarmBoot(std::uint32_t device) = 0;
    virtual std::int32_t krFlushHDDCache(std::uint32_t device, std::int32_t port) = 0;
};
