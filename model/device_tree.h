// The data of the device tree, as the model builds it.
#pragma once

#include <cstdint>
#include <string>

// The records lock guards it; positions count the chip branches from 0, and one out of range is
// ignored.
class device_tree {
public:
    virtual ~device_tree() = default;

    virtual void cleartree() = 0;
    // Appends a chip branch and prints "added" on standard output.
    virtual void addchipFirewire(bool firewire) = 0;
    // Appends an array branch to the chip branch at `position`.
    virtual void addraid(std::int32_t position, const std::string& withstring) = 0;
    // Appends a leaf to the array branch of the chip branch at `position` when in an array, else
    // to the chip branch itself.
    virtual void adddisk(std::int32_t position, const std::string& withstring, bool Raid) = 0;
};
