// Threads whose bodies the test runs when it likes, or real ones that can be waited for.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>

#include "model/services.h"
#include "tests/support/call_log.h"
#include "util/mutex.h"
#include "util/thread_annotations.h"

// Any thread.
class scripted_threads final : public thread_starter {
public:
    explicit scripted_threads(call_log& log) : log_(log) {}

    // Every start fails from now on.
    void refuse();
    // Every start makes a real thread from now on.
    void run_for_real(thread_starter& starter);
    // How many bodies wait to be run.
    std::size_t waiting() const;
    // Runs the oldest waiting body on this thread; fails the test when there is none.
    void run_next();
    // How many real threads have not ended.
    int running() const;
    // Blocks until every real thread has ended.
    void await_ends() const;
    void reset();

    bool start(std::function<void()> body) override;

private:
    void run_and_count(const std::function<void()>& body);

    call_log& log_;
    mutable plain_mutex mutex_;
    mutable std::condition_variable_any ended_;
    bool refusing_ GUARDED_BY(mutex_) = false;
    thread_starter* real_ GUARDED_BY(mutex_) = nullptr;
    int running_ GUARDED_BY(mutex_) = 0;
    std::deque<std::function<void()>> bodies_ GUARDED_BY(mutex_);
};
