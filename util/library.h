// Identity of an attached bridge.
#pragma once

#include <cstdint>
#include <string>

// Plain value; the owner of a shared one guards it.
struct controller_t {
    std::uint64_t id = 0;          // key of the controller list: GUID or location ID
    bool firewire = false;         // IEEE 1394, else USB
    std::uint32_t vendor_id = 0;   // USB only
    std::uint32_t product_id = 0;  // USB only
    std::string serial;            // USB only; never part of the identity
    std::uint64_t location_id = 0; // USB only; 32-bit registry value, sign-extended
    std::uint64_t guid = 0;        // FireWire only

    // Same socket and product for USB, same GUID for FireWire.
    bool operator==(const controller_t& other) const;

    // Names no bridge any more. vendor_id and location_id stay as they were.
    void clear();
};
