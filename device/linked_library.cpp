#include "device/linked_library.h"

#include "device/libkrraid.h"

extern "C" {
unsigned char inputCommand[16];
unsigned char krDataPort[1024];
unsigned char krDevService[1024];
int32_t retVal;
}

std::int32_t linked_library::getDeviceList(void* list, std::int32_t* count) {
    return ::getDeviceList(list, count);
}

std::int32_t linked_library::openConnection(std::uint32_t device) {
    return ::openConnection(device);
}

std::int32_t linked_library::closeConnection(std::uint32_t device) {
    return ::closeConnection(device);
}

std::int32_t linked_library::krGetRaidInfo(std::uint32_t device, void* buffer, std::uint32_t length,
                                           std::uint64_t lba, std::int32_t port,
                                           std::int32_t lba48) {
    return ::krGetRaidInfo(device, buffer, length, lba, port, lba48);
}

std::int32_t linked_library::krGetRaidInfoFW(std::uint32_t device, void* buffer,
                                             std::uint32_t length, std::uint64_t lba,
                                             std::int32_t port) {
    return ::krGetRaidInfoFW(device, buffer, length, lba, port);
}

std::int32_t linked_library::krSetRaidInfo(std::uint32_t device, const void* record,
                                           std::uint32_t length, std::uint64_t lba,
                                           std::int32_t port, std::int32_t lba48) {
    return ::krSetRaidInfo(device, record, length, lba, port, lba48);
}

std::int32_t linked_library::krSetRaidInfoFW(std::uint32_t device, const void* record,
                                             std::uint32_t length, std::uint64_t lba,
                                             std::int32_t port) {
    return ::krSetRaidInfoFW(device, record, length, lba, port);
}

std::int32_t linked_library::krGetRebuildStatus(std::uint32_t device, void* status,
                                                std::uint32_t length) {
    return ::krGetRebuildStatus(device, status, length);
}

std::int32_t linked_library::krGetDiskIdentify(std::uint32_t device, void* buffer,
                                               std::uint32_t length, std::int32_t port) {
    return ::krGetDiskIdentify(device, buffer, length, port);
}

std::int32_t linked_library::krGetRegister(std::uint32_t device, void* buffer, std::uint32_t size,
                                           std::uint32_t length, std::uint32_t address) {
    return ::krGetRegister(device, buffer, size, length, address);
}

std::int32_t linked_library::krWarmBoot(std::uint32_t device) {
    return ::krWarmBoot(device);
}

std::int32_t linked_library::krFlushHDDCache(std::uint32_t device, std::int32_t port) {
    return ::krFlushHDDCache(device, port);
}
