#include "enclosure/in_process_bench.h"

#include "device/libkrraid.h"

#include "tests/enclosure/builders.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace enclosure {
namespace {

using namespace std::chrono_literals;

TEST(Bench, ARestartIsADepartureAndThenAnArrival) {
    in_process_bench bench;
    std::vector<std::pair<bool, std::uint32_t>> heard;
    bench.on_bus_event([&](const in_process_bench::bus_event& event) {
        heard.emplace_back(event.arrived, event.subject.handle);
    });
    put_pair(bench, 1000, 1000);
    const std::uint32_t handle = bench.plug("box");
    ASSERT_EQ(bench.library().openConnection(handle), 0);
    ASSERT_EQ(bench.library().krWarmBoot(handle), 0);
    EXPECT_EQ(bench.handle_of("box"), 0U);
    bench.advance(1s);
    EXPECT_EQ(heard, (std::vector<std::pair<bool, std::uint32_t>>{
                         {true, handle}, {false, handle}, {true, handle + 1}}));
}

TEST(Bench, AHandlerMayUseTheBench) {
    in_process_bench bench;
    std::size_t seen = 0;
    bench.on_bus_event([&](const in_process_bench::bus_event&) { seen = bench.bridges().size(); });
    put_pair(bench, 1000, 1000);
    bench.plug("box");
    EXPECT_EQ(seen, 1U);
}

TEST(Bench, ConnectionsOfBridgesThatLeftDoNotPileUp) {
    in_process_bench bench;
    put_pair(bench, 1000, 1000);
    bench.plug("box");
    for (int i = 0; i < 10; ++i) {
        const std::uint32_t handle = bench.handle_of("box");
        ASSERT_EQ(bench.library().openConnection(handle), 0);
        ASSERT_EQ(bench.library().krWarmBoot(handle), 0);
        bench.advance(1s);
        EXPECT_EQ(bench.library().krFlushHDDCache(handle, 0), KRRAID_GONE);
    }
    EXPECT_EQ(bench.library().connections(), 0U);
}

TEST(Bench, SeveralThreadsWorkItAtOnce) {
    in_process_bench bench;
    put_pair(bench, 100'000, 100'000);
    std::atomic<int> events{0};
    bench.on_bus_event([&](const in_process_bench::bus_event&) { ++events; });
    bench.plug("box");
    std::atomic<bool> failed{false};
    const auto use = [&](int port) {
        for (int i = 0; i < 200; ++i) {
            const std::uint32_t handle = bench.handle_of("box");
            sector_data data = sector_number(static_cast<std::uint64_t>(i));
            if (handle != 0 && bench.library().openConnection(handle) == 0 &&
                bench.library().krSetRaidInfoFW(handle, data.data(), 512, 5, port) == 0) {
                sector_data back{};
                if (bench.library().krGetRaidInfoFW(handle, back.data(), 512, 5, port) == 0) {
                    failed = failed || back != data;
                }
            }
        }
    };
    const auto restart = [&] {
        for (int i = 0; i < 20; ++i) {
            bench.warm_boot("box");
            bench.advance(1s);
        }
    };
    std::thread first(use, 0);
    std::thread second(use, 1);
    std::thread third(restart);
    first.join();
    second.join();
    third.join();
    EXPECT_FALSE(failed);
    EXPECT_EQ(events, 41);
}

} // namespace
} // namespace enclosure
