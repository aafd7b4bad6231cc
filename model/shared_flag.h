// A yes/no that one thread writes and another polls.
#pragma once

#include <atomic>

// Reads, assigns and copies like a plain bool. Any thread.
class shared_flag {
public:
    shared_flag(bool value = false) : value_(value) {} // NOLINT(google-explicit-constructor)
    shared_flag(const shared_flag& other) : value_(other.value_.load()) {}
    shared_flag& operator=(const shared_flag& other) {
        value_ = other.value_.load();
        return *this;
    }
    shared_flag& operator=(bool value) {
        value_ = value;
        return *this;
    }
    ~shared_flag() = default;

    operator bool() const { return value_; } // NOLINT(google-explicit-constructor)

private:
    std::atomic<bool> value_;
};
