// What people do with enclosures and with the window, at random.
#pragma once

#include <array>
#include <cstdint>
#include <random>
#include <string>

#include "enclosure/in_process_bench.h"

class krchip;

inline constexpr std::array<const char*, 8> storm_disks = {"a", "b", "c", "d", "e", "f", "g", "h"};

// Hands on the enclosures. One thread.
class hands {
public:
    // Puts up the enclosures with mirrors, stripes and a copy that runs, and more disks on a shelf.
    hands(enclosure::in_process_bench& bench, std::uint64_t seed);

    // Plugs, unplugs, pulls, inserts, restarts or cuts the power. What cannot be done now is left.
    void step();
    // Plugs everything in.
    void plug_all();

private:
    std::string any_enclosure();
    std::string any_disk();
    int any_bay() { return static_cast<int>(random_() % 2); }
    void act();

    enclosure::in_process_bench& bench_;
    std::mt19937_64 random_;
};

// A user at the window. One thread, not the notification thread.
class user {
public:
    explicit user(std::uint64_t seed) : random_(seed) {}

    // Selects, refreshes, restarts or changes an array.
    void step();

    // Of an array, that were said to have been made.
    int changes() const { return changes_; }

private:
    void select();
    void change();
    static bool change_array(krchip& chip, std::uint64_t what);

    std::mt19937_64 random_;
    int changes_ = 0;
};
