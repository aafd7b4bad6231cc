#include "tests/support/enclosure_library.h"

std::int32_t enclosure_library::getDeviceList(void* list, std::int32_t* count) {
    return access_.getDeviceList(list, count);
}

std::int32_t enclosure_library::openConnection(std::uint32_t device) {
    return access_.openConnection(device);
}

std::int32_t enclosure_library::closeConnection(std::uint32_t device) {
    return access_.closeConnection(device);
}

std::int32_t enclosure_library::krGetRaidInfo(std::uint32_t device, void* buffer,
                                              std::uint32_t length, std::uint64_t lba,
                                              std::int32_t port, std::int32_t lba48) {
    return access_.krGetRaidInfo(device, buffer, length, lba, port, lba48);
}

std::int32_t enclosure_library::krGetRaidInfoFW(std::uint32_t device, void* buffer,
                                                std::uint32_t length, std::uint64_t lba,
                                                std::int32_t port) {
    return access_.krGetRaidInfoFW(device, buffer, length, lba, port);
}

std::int32_t enclosure_library::krSetRaidInfo(std::uint32_t device, const void* record,
                                              std::uint32_t length, std::uint64_t lba,
                                              std::int32_t port, std::int32_t lba48) {
    return access_.krSetRaidInfo(device, record, length, lba, port, lba48);
}

std::int32_t enclosure_library::krSetRaidInfoFW(std::uint32_t device, const void* record,
                                                std::uint32_t length, std::uint64_t lba,
                                                std::int32_t port) {
    return access_.krSetRaidInfoFW(device, record, length, lba, port);
}

std::int32_t enclosure_library::krGetRebuildStatus(std::uint32_t device, void* status,
                                                   std::uint32_t length) {
    return access_.krGetRebuildStatus(device, status, length);
}

std::int32_t enclosure_library::krGetDiskIdentify(std::uint32_t device, void* buffer,
                                                  std::uint32_t length, std::int32_t port) {
    return access_.krGetDiskIdentify(device, buffer, length, port);
}

std::int32_t enclosure_library::krGetRegister(std::uint32_t device, void* buffer,
                                              std::uint32_t size, std::uint32_t length,
                                              std::uint32_t address) {
    return access_.krGetRegister(device, buffer, size, length, address);
}

std::int32_t enclosure_library::krWarmBoot(std::uint32_t device) {
    return access_.krWarmBoot(device);
}

std::int32_t enclosure_library::krFlushHDDCache(std::uint32_t device, std::int32_t port) {
    return access_.krFlushHDDCache(device, port);
}
