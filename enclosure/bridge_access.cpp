#include "enclosure/bridge_access.h"

#include "device/libkrraid.h"

#include <algorithm>
#include <cstring>

namespace enclosure {

namespace {

constexpr std::int32_t success = KRRAID_DONE;
constexpr std::int32_t failure = KRRAID_FAILED;

constexpr std::size_t list_size = 2048; // bytes
constexpr std::size_t entry_size = 8;   // handle, then four bytes of zero
constexpr std::size_t most_entries = list_size / entry_size;

std::int32_t status_of(bridge_commands::outcome outcome) {
    switch (outcome) {
    case bridge_commands::outcome::done:
        return KRRAID_DONE;
    case bridge_commands::outcome::no_disk:
        return KRRAID_NO_DISK;
    case bridge_commands::outcome::no_answer:
        return KRRAID_NO_ANSWER;
    case bridge_commands::outcome::not_permitted:
        return KRRAID_NOT_PERMITTED;
    case bridge_commands::outcome::gone:
        return KRRAID_GONE;
    case bridge_commands::outcome::failed:
        break;
    }
    return KRRAID_FAILED;
}

std::int32_t status_of(delivery opening) {
    switch (opening) {
    case delivery::answered:
        return KRRAID_DONE;
    case delivery::no_answer:
    case delivery::disturbed:
        return KRRAID_NO_ANSWER;
    case delivery::not_permitted:
        return KRRAID_NOT_PERMITTED;
    case delivery::gone:
        break;
    }
    return KRRAID_GONE;
}

byte_room room(void* buffer, std::size_t length) {
    return {static_cast<std::uint8_t*>(buffer), length};
}

byte_view view(const void* buffer, std::size_t length) {
    return {static_cast<const std::uint8_t*>(buffer), length};
}

} // namespace

// `operation` is made only for an open device.
template<class Operation>
std::int32_t bridge_access::on_device(std::uint32_t device, Operation operation) {
    const std::lock_guard lock(mutex_);
    if (!open_.contains(device)) {
        return KRRAID_GONE;
    }
    const bridge_commands::outcome outcome = operation();
    if (outcome == bridge_commands::outcome::gone) {
        forget(device);
    }
    return status_of(outcome);
}

void bridge_access::forget(std::uint32_t device) {
    way_.close(device);
    open_.erase(device);
}

void bridge_access::forget_all_but(const std::vector<std::uint32_t>& handles) {
    const std::set<std::uint32_t> former = open_;
    for (const std::uint32_t device : former) {
        if (std::find(handles.begin(), handles.end(), device) == handles.end()) {
            forget(device);
        }
    }
}

std::int32_t bridge_access::getDeviceList(void* list, std::int32_t* count) {
    if (list == nullptr || count == nullptr) {
        return failure;
    }
    const std::lock_guard lock(mutex_);
    bridge_listing listing = way_.bridges();
    std::vector<std::uint32_t>& handles = listing.handles;
    if (listing.complete) {
        forget_all_but(handles);
    }
    handles.resize(std::min(handles.size(), most_entries));
    std::memset(list, 0, list_size);
    for (std::size_t i = 0; i < handles.size(); ++i) {
        std::memcpy(static_cast<std::uint8_t*>(list) + i * entry_size, &handles[i],
                    sizeof handles[i]);
    }
    *count = static_cast<std::int32_t>(handles.size());
    return success;
}

std::int32_t bridge_access::openConnection(std::uint32_t device) {
    const std::lock_guard lock(mutex_);
    const delivery opening = way_.open(device);
    if (opening == delivery::answered) {
        open_.insert(device);
    } else {
        forget(device);
    }
    return status_of(opening);
}

std::int32_t bridge_access::closeConnection(std::uint32_t device) {
    const std::lock_guard lock(mutex_);
    if (!open_.contains(device)) {
        return KRRAID_GONE;
    }
    forget(device);
    return success;
}

std::int32_t bridge_access::krGetRaidInfo(std::uint32_t device, void* buffer, std::uint32_t length,
                                          std::uint64_t lba, std::int32_t port,
                                          std::int32_t lba48) {
    if (buffer == nullptr || length != sector_size || !is_port(port)) {
        return failure;
    }
    return on_device(device, [&] {
        return commands_.read_sector(device, port, lba, lba48 == 1, room(buffer, length));
    });
}

std::int32_t bridge_access::krGetRaidInfoFW(std::uint32_t device, void* buffer,
                                            std::uint32_t length, std::uint64_t lba,
                                            std::int32_t port) {
    return krGetRaidInfo(device, buffer, length, lba, port, 1);
}

std::int32_t bridge_access::krSetRaidInfo(std::uint32_t device, const void* record,
                                          std::uint32_t length, std::uint64_t lba,
                                          std::int32_t port, std::int32_t lba48) {
    if (record == nullptr || length != sector_size || !is_port(port)) {
        return failure;
    }
    return on_device(device, [&] {
        return commands_.write_sector(device, port, lba, lba48 == 1, view(record, length));
    });
}

std::int32_t bridge_access::krSetRaidInfoFW(std::uint32_t device, const void* record,
                                            std::uint32_t length, std::uint64_t lba,
                                            std::int32_t port) {
    return krSetRaidInfo(device, record, length, lba, port, 1);
}

std::int32_t bridge_access::krGetRebuildStatus(std::uint32_t device, void* status,
                                               std::uint32_t length) {
    if (status == nullptr || length != rebuild_status_size) {
        return failure;
    }
    return on_device(device,
                     [&] { return commands_.rebuild_status(device, room(status, length)); });
}

std::int32_t bridge_access::krGetDiskIdentify(std::uint32_t device, void* buffer,
                                              std::uint32_t length, std::int32_t port) {
    if (buffer == nullptr || length != sector_size || !is_port(port)) {
        return failure;
    }
    return on_device(device,
                     [&] { return commands_.identify(device, port, room(buffer, length)); });
}

std::int32_t bridge_access::krGetRegister(std::uint32_t device, void* buffer, std::uint32_t size,
                                          std::uint32_t length, std::uint32_t address) {
    constexpr std::uint32_t widest = 4;
    if (buffer == nullptr || length == 0 || length > widest || length > size) {
        return failure;
    }
    return on_device(
        device, [&] { return commands_.read_register(device, address, room(buffer, length)); });
}

std::int32_t bridge_access::krWarmBoot(std::uint32_t device) {
    return on_device(device, [&] { return commands_.warm_boot(device); });
}

std::int32_t bridge_access::krFlushHDDCache(std::uint32_t device, std::int32_t port) {
    if (!is_port(port)) {
        return failure;
    }
    return on_device(device, [&] { return commands_.flush(device, port); });
}

std::size_t bridge_access::connections() {
    const std::lock_guard lock(mutex_);
    return open_.size();
}

} // namespace enclosure
