// What the process takes of the machine.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

struct figures {
    long descriptors = 0;
    long threads = 0;
    long memory = 0; // KiB, resident

    static figures now();
};

// Samples of one run, half by half.
class figure_log {
public:
    void sample() { all_.push_back(figures::now()); }

    // Prints the most of either half; true when the second has no more than the first, but for
    // what comes and goes.
    bool flat() const;

private:
    std::vector<figures> all_;
};
