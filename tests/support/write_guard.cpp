#include "tests/support/write_guard.h"

#include <gtest/gtest.h>

write_guard::write_guard(scripted_library& library, std::uint32_t device,
                         std::array<std::uint64_t, 2> capacities)
    : library_(library), device_(device), capacities_(capacities) {
    library_.on_call([this](const library_call& call) { look_at(call); });
}

void write_guard::look_at(const library_call& call) {
    constexpr std::uint64_t start = 64;           // sectors that may be wiped
    constexpr std::uint64_t record_distance = 15; // from the end of the disk
    if (!call.record) {
        return;
    }
    ++writes_;
    EXPECT_EQ(call.device, device_) << call.text << " writes to another bridge";
    const std::uint64_t capacity = capacities_.at(static_cast<std::size_t>(call.port));
    EXPECT_TRUE(call.lba < start || call.lba == capacity - record_distance)
        << call.text << " writes to a sector of the user's";
}
