#include "model/locks.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "model/shared_flag.h"
#include "model/wake_point.h"

namespace {

// Runs `body` on another thread and waits for its end.
template<class Body> void elsewhere(Body body) {
    std::thread thread(body);
    thread.join();
}

} // namespace

TEST(OwnedMutex, KnowsItsOwner) {
    owned_mutex mutex;
    EXPECT_FALSE(mutex.held_here());
    {
        const lock_scope lock(mutex);
        EXPECT_TRUE(mutex.held_here());
        elsewhere([&mutex] { EXPECT_FALSE(mutex.held_here()); });
    }
    EXPECT_FALSE(mutex.held_here());
}

TEST(OwnedMutex, KeepsThreadsApart) {
    owned_mutex mutex;
    int sum = 0;
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int n = 0; n < 1000; ++n) {
                const lock_scope lock(mutex);
                ++sum;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(sum, 4000);
}

#ifndef NDEBUG
void lock_twice(owned_mutex& mutex) NO_THREAD_SAFETY_ANALYSIS {
    mutex.lock();
    mutex.lock();
}

TEST(OwnedMutexDeathTest, LockedTwiceByOneThreadStopsWhereItHappens) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    owned_mutex mutex;
    EXPECT_DEATH(lock_twice(mutex), "locked twice by one thread");
}
#endif

TEST(WorkGate, IsHeldForAScope) {
    work_gate gate;
    EXPECT_FALSE(gate.held_here());
    {
        const gate_scope work(gate);
        EXPECT_TRUE(gate.held_here());
        elsewhere([&gate] { EXPECT_FALSE(gate.held_here()); });
    }
    EXPECT_FALSE(gate.held_here());
}

TEST(WorkGate, EnteredAgainByItsHolderDoesNothing) {
    work_gate gate;
    const gate_scope outer(gate);
    { const gate_scope inner(gate); }
    EXPECT_TRUE(gate.held_here());
}

TEST(WorkGate, TriedByAnotherThreadIsRefusedWhileItIsHeld) {
    work_gate gate;
    {
        const gate_scope work(gate);
        elsewhere([&gate] {
            const gate_attempt attempt(gate);
            EXPECT_FALSE(attempt);
        });
        EXPECT_TRUE(gate.held_here()) << "a refused attempt gave the gate away";
    }
    elsewhere([&gate] {
        const gate_attempt attempt(gate);
        EXPECT_TRUE(attempt);
        EXPECT_TRUE(gate.held_here());
    });
    EXPECT_FALSE(gate.held_here());
}

TEST(WorkGate, PausedLetsOtherWorkIn) {
    work_gate gate;
    const gate_scope work(gate);
    {
        const gate_pause pause(gate);
        EXPECT_FALSE(gate.held_here());
        elsewhere([&gate] {
            const gate_attempt attempt(gate);
            EXPECT_TRUE(attempt);
        });
    }
    EXPECT_TRUE(gate.held_here());
}

TEST(WorkGate, PausedByAThreadThatDoesNotHoldItStaysWithItsHolder) {
    work_gate gate;
    const gate_scope work(gate);
    elsewhere([&gate] {
        const gate_pause pause(gate);
        EXPECT_FALSE(gate.held_here());
    });
    EXPECT_TRUE(gate.held_here());
}

TEST(WorkGate, LetsOneActivityInAtATime) {
    work_gate gate;
    std::atomic<int> inside{0};
    int sum = 0;
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int n = 0; n < 500; ++n) {
                const gate_scope work(gate);
                EXPECT_EQ(inside.fetch_add(1), 0);
                ++sum;
                --inside;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(sum, 2000);
}

TEST(SharedFlag, ReadsAssignsAndCopiesLikeABool) {
    shared_flag flag;
    EXPECT_FALSE(flag);
    flag = true;
    shared_flag copy(flag);
    EXPECT_TRUE(copy);
    copy = false;
    EXPECT_TRUE(flag);
    flag = copy;
    EXPECT_FALSE(flag);
}

TEST(SharedFlag, IsSeenByAPollingThread) {
    shared_flag flag;
    std::thread poller([&flag] {
        while (!flag) {
            std::this_thread::yield();
        }
    });
    flag = true;
    poller.join();
}

TEST(WakePoint, WokenBeforehandDoesNotHoldUp) {
    wake_point point;
    point.wake();
    point.wait();
    point.wait_for(std::chrono::hours(1));
}

TEST(WakePoint, WakesASleeperEarly) {
    wake_point point;
    std::thread sleeper([&point] { point.wait_for(std::chrono::hours(1)); });
    std::thread waiter([&point] { point.wait(); });
    point.wake();
    sleeper.join();
    waiter.join();
}

TEST(WakePoint, NotWokenReturnsAfterItsTime) {
    wake_point point;
    const auto before = std::chrono::steady_clock::now();
    point.wait_for(std::chrono::milliseconds(20));
    EXPECT_GE(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(20));
}
