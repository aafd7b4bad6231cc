// What a call of the access library costs over a real node, beside bare commands to the same.
#include "device/libkrraid.h"
#include "device/linked_library.h"
#include "enclosure/sg_handle.h"
#include "model/krtool.h"

#include "tests/vm/enclosures.h"
#include "tests/vm/program.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <scsi/sg.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace {

using microseconds = std::chrono::duration<double, std::micro>;

microseconds median(std::vector<microseconds> times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

microseconds time_of(const std::function<bool()>& call) {
    const auto began = std::chrono::steady_clock::now();
    EXPECT_TRUE(call());
    return std::chrono::steady_clock::now() - began;
}

// A command by itself, with room for what comes back.
bool bare_command(int node, std::array<std::uint8_t, 6> cdb, std::vector<std::uint8_t> data) {
    std::array<std::uint8_t, 32> sense{};
    sg_io_hdr_t request{};
    request.interface_id = 'S';
    request.dxfer_direction = data.empty() ? SG_DXFER_NONE : SG_DXFER_FROM_DEV;
    request.cmdp = cdb.data();
    request.cmd_len = cdb.size();
    request.dxferp = data.data();
    request.dxfer_len = static_cast<unsigned>(data.size());
    request.sbp = sense.data();
    request.mx_sb_len = sense.size();
    request.timeout = 3000; // ms
    return ioctl(node, SG_IO, &request) == 0 && request.status == 0;
}

constexpr std::array<std::uint8_t, 6> test_unit_ready{};
constexpr std::array<std::uint8_t, 6> inquiry{0x12, 0, 0, 0, 36, 0};

TEST(RealNodesCall, CostsLittleMoreThanABareCommand) {
    start_program();
    real_enclosure box("cost", "16MB");
    box.usb().plug();
    const krchip chip = await_chip("is there", box.name(),
                                   [](const krchip& one) { return one.disks[0].present != 0; });
    const std::uint32_t minor = chip.device & ((1U << enclosure::sg_minor_bits) - 1);
    const std::string path = "/dev/sg" + std::to_string(minor);
    const int node = open(path.c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_GE(node, 0) << path;
    linked_library library;
    std::array<unsigned char, access_library::sector> answer{};
    std::vector<microseconds> calls;
    std::vector<microseconds> empty;
    std::vector<microseconds> short_answer;
    const lock_scope lock(j.mutex);
    for (int turn = 0; turn < 100; ++turn) {
        calls.push_back(time_of([&] {
            return library.krGetRegister(chip.device, answer.data(), access_library::sector, 4,
                                         access_library::presence_port0) == KRRAID_DONE;
        }));
        empty.push_back(time_of([node] { return bare_command(node, test_unit_ready, {}); }));
        short_answer.push_back(
            time_of([node] { return bare_command(node, inquiry, std::vector<std::uint8_t>(36)); }));
    }
    close(node);
    const double times = median(calls) / median(short_answer);
    std::printf("library call over SG_IO %.0f us, bare command with an answer %.0f us: %.2f times; "
                "without one %.0f us\n",
                median(calls).count(), median(short_answer).count(), times, median(empty).count());
    EXPECT_LE(times, 3 * 1.3);
}

} // namespace
