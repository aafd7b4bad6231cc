// The cable between an exported enclosure and this machine's kernel.
#pragma once

#include <string>
#include <thread>

// Attaches the enclosure, and again each time it has left the bus, as a cable does that stays
// plugged in.
class cable {
public:
    // `serial` is the enclosure's USB serial number.
    cable(std::string enclosure, std::string serial)
        : enclosure_(std::move(enclosure)), serial_(std::move(serial)) {}
    ~cable() { pull(); }
    cable(const cable&) = delete;
    cable& operator=(const cable&) = delete;

    // Returns when the kernel has taken the attachment; its disk comes later.
    void plug();
    // Returns when it is not attached any more and stays so.
    void pull();

private:
    bool attach();
    void keep_attached();

    std::string enclosure_;
    std::string serial_;
    std::string bus_id_;
    std::thread keeper_;
};
