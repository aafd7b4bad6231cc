// Real time, as moments since the start of this process.
#pragma once

#include "enclosure/units.h"

#include <chrono>

namespace enclosure {

// Any thread. Never goes back; stands still while the machine sleeps.
class real_clock {
public:
    moment now() const { return std::chrono::steady_clock::now() - start_; }

private:
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

} // namespace enclosure
