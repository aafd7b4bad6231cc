// A mutex that clang's thread-safety analysis follows.
#pragma once

#include "util/thread_annotations.h"

#include <mutex>

class CAPABILITY("mutex") emulated_mutex {
public:
    void lock() ACQUIRE() { mutex_.lock(); }
    void unlock() RELEASE() { mutex_.unlock(); }

private:
    std::mutex mutex_;
};

// Holds one for a scope.
class SCOPED_CAPABILITY emulated_guard {
public:
    explicit emulated_guard(emulated_mutex& mutex) ACQUIRE(mutex) : mutex_(mutex) { mutex_.lock(); }
    ~emulated_guard() RELEASE() { mutex_.unlock(); }
    emulated_guard(const emulated_guard&) = delete;
    emulated_guard& operator=(const emulated_guard&) = delete;

private:
    emulated_mutex& mutex_;
};
