// The access library: the twelve operations on real bridges and on those of the host service.
#pragma GCC visibility push(default)
#include "device/libkrraid.h"
#pragma GCC visibility pop

#include "enclosure/bridge_access.h"
#include "enclosure/library_way.h"

#include <exception>

namespace {

// Never destroyed: the program may end while its threads are still in a call.
enclosure::bridge_access& operations() {
    static enclosure::bridge_access* const all =
        new enclosure::bridge_access(enclosure::library_way());
    return *all;
}

// No exception may reach a caller that is not written in C++.
template<class Operation> int32_t safely(Operation operation) {
    try {
        return operation(operations());
    } catch (const std::exception&) {
        return KRRAID_FAILED;
    }
}

} // namespace

extern "C" {

int32_t getDeviceList(void* list, int32_t* count) {
    return safely([&](auto& on) { return on.getDeviceList(list, count); });
}

int32_t openConnection(uint32_t device) {
    return safely([&](auto& on) { return on.openConnection(device); });
}

int32_t closeConnection(uint32_t device) {
    return safely([&](auto& on) { return on.closeConnection(device); });
}

int32_t krGetRaidInfo(uint32_t device, void* buffer, uint32_t length, uint64_t lba, int32_t port,
                      int32_t lba48) {
    return safely(
        [&](auto& on) { return on.krGetRaidInfo(device, buffer, length, lba, port, lba48); });
}

int32_t krGetRaidInfoFW(uint32_t device, void* buffer, uint32_t length, uint64_t lba,
                        int32_t port) {
    return safely([&](auto& on) { return on.krGetRaidInfoFW(device, buffer, length, lba, port); });
}

int32_t krSetRaidInfo(uint32_t device, const void* record, uint32_t length, uint64_t lba,
                      int32_t port, int32_t lba48) {
    return safely(
        [&](auto& on) { return on.krSetRaidInfo(device, record, length, lba, port, lba48); });
}

int32_t krSetRaidInfoFW(uint32_t device, const void* record, uint32_t length, uint64_t lba,
                        int32_t port) {
    return safely([&](auto& on) { return on.krSetRaidInfoFW(device, record, length, lba, port); });
}

int32_t krGetRebuildStatus(uint32_t device, void* status, uint32_t length) {
    return safely([&](auto& on) { return on.krGetRebuildStatus(device, status, length); });
}

int32_t krGetDiskIdentify(uint32_t device, void* buffer, uint32_t length, int32_t port) {
    return safely([&](auto& on) { return on.krGetDiskIdentify(device, buffer, length, port); });
}

int32_t krGetRegister(uint32_t device, void* buffer, uint32_t size, uint32_t length,
                      uint32_t address) {
    return safely(
        [&](auto& on) { return on.krGetRegister(device, buffer, size, length, address); });
}

int32_t krWarmBoot(uint32_t device) {
    return safely([&](auto& on) { return on.krWarmBoot(device); });
}

int32_t krFlushHDDCache(uint32_t device, int32_t port) {
    return safely([&](auto& on) { return on.krFlushHDDCache(device, port); });
}

} // extern "C"
