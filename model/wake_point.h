// Where a thread sleeps that another can wake early.
#pragma once

#include <chrono>
#include <condition_variable>

#include "util/mutex.h"

// Once woken it stays so. Any thread.
class wake_point {
public:
    void wake() {
        {
            const mutex_scope lock(mutex_);
            woken_ = true;
        }
        changed_.notify_all();
    }

    // Returns after `time`, or at once when woken.
    void wait_for(std::chrono::milliseconds time) {
        const auto end = std::chrono::steady_clock::now() + time;
        const mutex_scope lock(mutex_);
        while (!woken_ && changed_.wait_until(mutex_, end) != std::cv_status::timeout) {
        }
    }

    // Returns when woken.
    void wait() {
        const mutex_scope lock(mutex_);
        while (!woken_) {
            changed_.wait(mutex_);
        }
    }

private:
    plain_mutex mutex_;
    std::condition_variable_any changed_;
    bool woken_ GUARDED_BY(mutex_) = false;
};
