// The device registry: a tree of entries in which a bridge hangs four levels below the bus
// device that carries it, with its own name three levels below itself.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Names an entry of the registry; 0 is "no entry", and every question about it has the empty
// answer. An entry stays valid until the departure of its bridge has been handled.
using registry_entry = std::uint64_t;

// A bridge that is there, told or not told by the access library.
struct reached_bridge {
    std::string name;       // may be empty
    std::string node;       // of the system, "/dev/sg3"
    bool permitted = false; // to this user

    bool operator==(const reached_bridge&) const = default;
};

// Any thread, several at once. Nothing fails: what is missing is 0 or empty. Nothing but entry_of
// blocks for longer than a look at local data.
class device_registry {
public:
    virtual ~device_registry() = default;

    // The bridge's own entry for a device handle of the access library. May ask the system about a
    // bridge that has just come, 5 seconds at most for each question: not for the interface thread.
    virtual registry_entry entry_of(std::uint32_t device) = 0;

    virtual registry_entry parent(registry_entry entry) = 0;
    virtual registry_entry first_child(registry_entry entry) = 0;

    // At most 127 characters. That of a FireWire bus device contains "FireWire".
    virtual std::string name(registry_entry entry) = 0;

    // "GUID" (64 bits); "idVendor", "idProduct", "locationID" (32 bits, signed).
    virtual std::int64_t number(registry_entry entry, std::string_view property) = 0;

    // "USB Serial Number".
    virtual std::u16string text(registry_entry entry, std::string_view property) = 0;

    // The bridges that are reached through nodes of the system, in the order of their arrival. One
    // that has left is not among them, also while its departure is still being handled.
    virtual std::vector<reached_bridge> reached() = 0;
};
