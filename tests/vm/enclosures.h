// Emulated enclosures on this machine's own USB.
#pragma once

#include "tests/vm/cable.h"

#include <string>
#include <vector>

// An enclosure with two disks, NAME-a in bay 0 and NAME-b in bay 1, and its cable. Its USB serial
// number is its name. It goes with the object, which waits until the program has seen that.
class real_enclosure {
public:
    real_enclosure(std::string name, const std::string& size);
    ~real_enclosure();
    real_enclosure(const real_enclosure&) = delete;
    real_enclosure& operator=(const real_enclosure&) = delete;

    const std::string& name() const { return name_; }
    cable& usb() { return usb_; }

    void pull(int bay);
    void insert(int bay, const std::string& disk);
    void make_disk(const std::string& disk, const std::string& size);

    // Megabytes per second of its copies.
    void set_rate(int rate);
    // Whether one is under way, by the enclosure's own word.
    bool copies() const;

private:
    std::string name_;
    cable usb_;
    std::vector<std::string> disks_;
};
