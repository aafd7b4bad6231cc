#include "model/exit_gate.h"

#include <cstdio>
#include <future>
#include <gtest/gtest.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

struct recorded_end {
    std::vector<int> statuses;
    exit_gate::ending ending() {
        return [this](int status) { statuses.push_back(status); };
    }
};

constexpr std::chrono::hours for_ever(1);

} // namespace

TEST(ExitGate, LeavesAtOnceWhenNothingIsInFlight) {
    recorded_end end;
    exit_gate gate(end.ending(), for_ever);
    gate.leave(3);
    EXPECT_EQ(end.statuses, std::vector<int>{3});
}

TEST(ExitGate, LetsNoWriteBeginOnceTheProcessIsLeaving) {
    recorded_end end;
    exit_gate gate(end.ending(), for_ever);
    {
        const write_in_flight allowed(gate);
        EXPECT_TRUE(allowed);
    }
    gate.leave(0);
    const write_in_flight refused(gate);
    EXPECT_FALSE(refused);
    EXPECT_FALSE(gate.begin_write());
}

TEST(ExitGate, WaitsForASectorInFlight) {
    recorded_end end;
    bool read_back = false;
    exit_gate gate(
        [&](int status) {
            EXPECT_TRUE(read_back) << "the sector was cut off";
            end.statuses.push_back(status);
        },
        for_ever);
    std::promise<void> writing;
    std::thread writer([&] {
        const write_in_flight sector(gate);
        writing.set_value();
        // As long as a new write may begin, nobody is leaving yet.
        while (gate.begin_write()) {
            gate.end_write();
            std::this_thread::yield();
        }
        // An impatient gate gets the time to cut it off.
        for (int turn = 0; turn < 10'000; ++turn) {
            std::this_thread::yield();
        }
        read_back = true;
    });
    writing.get_future().wait();
    gate.leave(0);
    writer.join();
    EXPECT_EQ(end.statuses, std::vector<int>{0});
}

TEST(ExitGate, WaitsNoLongerThanItsPatience) {
    recorded_end end;
    exit_gate gate(end.ending(), std::chrono::milliseconds(1));
    const write_in_flight stuck(gate);
    gate.leave(3);
    EXPECT_EQ(end.statuses, std::vector<int>{3});
}

TEST(ExitGateDeathTest, EndsTheProcessWithItsStatusAndFlushesFirst) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(
        {
            dup2(STDERR_FILENO, STDOUT_FILENO);
            std::fputs("without a line end", stdout);
            exit_gate().leave(3);
        },
        testing::ExitedWithCode(3), "without a line end");
    EXPECT_EXIT(exit_gate().leave(0), testing::ExitedWithCode(0), "");
}

TEST(ExitGateDeathTest, EndsTheProcessUnderLivingThreads) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(
        {
            std::thread([] {
                for (;;) {
                    std::this_thread::yield();
                }
            }).detach();
            exit_gate().leave(0);
        },
        testing::ExitedWithCode(0), "");
}
