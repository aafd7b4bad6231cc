// Pauses that take no time.
#pragma once

#include <atomic>
#include <functional>
#include <map>

#include "model/services.h"
#include "tests/support/call_log.h"
#include "util/mutex.h"
#include "util/thread_annotations.h"

// Writes down every pause, "sleep(10ms)", and returns at once. Any thread.
class scripted_pauses final : public pauses {
public:
    explicit scripted_pauses(call_log& log) : log_(log) {}

    // Runs `action` within the nth pause from now on; 1 is the next one.
    void on_nth(int nth, std::function<void()> action);
    // Runs within every pause.
    void on_every(std::function<void()> action);
    // What is put behind the line of a pause, such as " locked".
    void remark(std::function<std::string()> text);
    // From now on nothing is written down, and a pause only lets other threads run.
    void hurry() { hurried_ = true; }
    void reset();

    void sleep(std::chrono::milliseconds time) override;
    void sleep_until_woken(wake_point& point, std::chrono::milliseconds time) override;

private:
    call_log& log_;
    std::atomic<bool> hurried_{false};
    plain_mutex mutex_;
    int slept_ GUARDED_BY(mutex_) = 0;
    std::multimap<int, std::function<void()>> actions_ GUARDED_BY(mutex_);
    std::function<void()> every_ GUARDED_BY(mutex_);
    std::function<std::string()> remark_ GUARDED_BY(mutex_);
};
