// Fails the test for a write to any sector that no array operation has business with.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "tests/support/scripted_library.h"

// On guard as long as it lives, in the place of the library's other hook. Any thread may call the
// library.
class write_guard {
public:
    // `capacities`: of the disks on both ports of `device`, in sectors, as their IDENTIFY blocks
    // tell them. Allowed are LBAs 0 to 63 and capacity - 15 of each; writes to any other device
    // are not. `library` outlives it.
    write_guard(scripted_library& library, std::uint32_t device,
                std::array<std::uint64_t, 2> capacities);
    ~write_guard() { library_.on_call(nullptr); }
    write_guard(const write_guard&) = delete;
    write_guard& operator=(const write_guard&) = delete;

    // How many writes came.
    std::size_t writes() const { return writes_; }

private:
    void look_at(const library_call& call);

    scripted_library& library_;
    const std::uint32_t device_;
    const std::array<std::uint64_t, 2> capacities_;
    std::atomic<std::size_t> writes_{0};
};
