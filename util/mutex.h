// A plain mutex that clang's thread-safety analysis understands, as the standard library's does
// not. Wait with std::condition_variable_any on the mutex itself, in a loop.
#pragma once

#include <mutex>

#include "util/thread_annotations.h"

class CAPABILITY("mutex") plain_mutex {
public:
    void lock() ACQUIRE() { mutex_.lock(); }
    void unlock() RELEASE() { mutex_.unlock(); }

private:
    std::mutex mutex_;
};

// Holds a plain_mutex for a scope.
class SCOPED_CAPABILITY mutex_scope {
public:
    explicit mutex_scope(plain_mutex& mutex) ACQUIRE(mutex) : mutex_(mutex) { mutex_.lock(); }
    ~mutex_scope() RELEASE() { mutex_.unlock(); }
    mutex_scope(const mutex_scope&) = delete;
    mutex_scope& operator=(const mutex_scope&) = delete;

private:
    plain_mutex& mutex_;
};
