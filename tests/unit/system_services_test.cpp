#include "model/system_services.h"

#include <chrono>
#include <ctime>
#include <dlfcn.h>
#include <functional>
#include <future>
#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <syslog.h>
#include <thread>
#include <unistd.h>

#include "model/wake_point.h"

using std::chrono::milliseconds;
using std::chrono::steady_clock;

TEST(SteadyPauses, LastTheirTime) {
    steady_pauses pauses;
    const auto before = steady_clock::now();
    pauses.sleep(milliseconds(20));
    EXPECT_GE(steady_clock::now() - before, milliseconds(20));
}

TEST(SteadyPauses, AreCutShortByAWakePoint) {
    steady_pauses pauses;
    wake_point point;
    point.wake();
    pauses.sleep_until_woken(point, std::chrono::hours(1));
}

TEST(SteadyPauses, LastTheirTimeWhenNobodyWakes) {
    steady_pauses pauses;
    wake_point point;
    const auto before = steady_clock::now();
    pauses.sleep_until_woken(point, milliseconds(20));
    EXPECT_GE(steady_clock::now() - before, milliseconds(20));
}

TEST(SystemClock, TellsThePresent) {
    system_clock clock;
    const std::time_t before = std::time(nullptr);
    const std::time_t now = clock.now();
    EXPECT_LE(before, now);
    EXPECT_LE(now, std::time(nullptr));
}

TEST(DetachedThreads, RunTheirBodyOnAnotherThread) {
    detached_threads threads;
    std::promise<std::thread::id> ran;
    ASSERT_TRUE(threads.start([&ran] { ran.set_value(std::this_thread::get_id()); }));
    EXPECT_NE(ran.get_future().get(), std::this_thread::get_id());
}

namespace {

// What standard error is told of a thread with that body, until the thread has let go of it.
std::string told_of(const std::function<void()>& body) {
    std::promise<void> over;
    testing::internal::CaptureStderr();
    detached_threads threads;
    const auto tell = [&over](const void*) { over.set_value(); };
    threads.start([body, life = std::shared_ptr<const void>(nullptr, tell)] { body(); });
    over.get_future().wait();
    return testing::internal::GetCapturedStderr();
}

} // namespace

TEST(DetachedThreads, EndWithALineWhenTheirBodyThrows) {
    EXPECT_EQ(told_of([] { throw std::runtime_error("no room"); }),
              "kestrelraid: a background thread ended: no room\n");
    EXPECT_EQ(told_of([] { throw 7; }), "kestrelraid: a background thread ended\n");
    EXPECT_EQ(told_of([] {}), "");
}

// Sanitizers take the room for themselves.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)

namespace {

// Leaves with 7 when it is told that a thread cannot be made. Everybody, root included, is bound
// by the room that a stack needs.
[[noreturn]] void start_without_room() {
    const rlimit none{1, 1};
    setrlimit(RLIMIT_AS, &none);
    detached_threads threads;
    _exit(threads.start([] {}) ? 1 : 7);
}

} // namespace

TEST(DetachedThreadsDeathTest, ThatCannotBeMadeAreToldSo) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(start_without_room(), testing::ExitedWithCode(7), "");
}

#endif

// In place of the C library's: what goes to the log of the machine goes to standard error too.
extern "C" void openlog(const char* name, int options, int facility) {
    using opening = void (*)(const char*, int, int);
    static const auto real = reinterpret_cast<opening>(::dlsym(RTLD_NEXT, "openlog"));
    real(name, options | LOG_PERROR, facility);
}

TEST(SystemLog, TakesALineWithPercentSignsAsItStands) {
    system_log log;
    testing::internal::CaptureStderr();
    log.line("Kestrel : RAID size %s %n < 2TB");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "kestrelraid[" + std::to_string(::getpid()) + "]: Kestrel : RAID size %s %n < 2TB\n");
}
