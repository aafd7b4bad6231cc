// A mirror of two disks of the same size, as a host uses it.
#pragma once

#include "tests/enclosure/volume_host.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>

class mirror_test : public testing::Test {
protected:
    static constexpr std::uint64_t sectors = 6000; // of either disk
    static constexpr std::uint64_t record_at = sectors - 15;
    static constexpr std::size_t last_of_stamp = 495; // byte of the record

    void start(enclosure::scenario state) { host_.start(state, sectors, sectors); }

    bytes record_of(int port) { return host_.on_disk(port, record_at, 1); }

    volume_host host_;
};
