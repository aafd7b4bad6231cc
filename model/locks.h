// The model's three locks. Order: gate first, then the records lock or the library mutex, and
// never both of these at once (docs/threads.md).
#pragma once

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "util/mutex.h"
#include "util/thread_annotations.h"

// A mutex that knows its owner, so that locking it twice stops a debug build where it happens
// instead of hanging.
class CAPABILITY("mutex") owned_mutex {
public:
    void lock() ACQUIRE();
    void unlock() RELEASE();
    // True on the thread that holds it.
    bool held_here() const;

private:
    std::mutex mutex_;
    std::atomic<std::thread::id> owner_{};
};

// Holds an owned_mutex for a scope.
class SCOPED_CAPABILITY lock_scope {
public:
    explicit lock_scope(owned_mutex& mutex) ACQUIRE(mutex) : mutex_(mutex) { mutex_.lock(); }
    ~lock_scope() RELEASE() { mutex_.unlock(); }
    lock_scope(const lock_scope&) = delete;
    lock_scope& operator=(const lock_scope&) = delete;

private:
    owned_mutex& mutex_;
};

// Lets one activity at a time change the records as a whole: a rescan, a chip operation, a
// selection, the clean-up after a rebuild. Taken through the scopes below only.
class work_gate {
public:
    // True on the thread whose activity it is.
    bool held_here() const;

private:
    friend class gate_scope;
    friend class gate_attempt;
    friend class gate_pause;

    void enter();
    bool try_enter();
    void leave();

    mutable plain_mutex mutex_;
    std::condition_variable_any free_;
    std::thread::id owner_ GUARDED_BY(mutex_);
};

// Holds the gate for a scope; within a scope that holds it already it does nothing.
class gate_scope {
public:
    explicit gate_scope(work_gate& gate);
    ~gate_scope();
    gate_scope(const gate_scope&) = delete;
    gate_scope& operator=(const gate_scope&) = delete;

private:
    work_gate& gate_;
    bool entered_;
};

// Holds the gate for a scope if it was free.
class gate_attempt {
public:
    explicit gate_attempt(work_gate& gate) : gate_(gate), entered_(gate.try_enter()) {}
    ~gate_attempt();
    gate_attempt(const gate_attempt&) = delete;
    gate_attempt& operator=(const gate_attempt&) = delete;
    explicit operator bool() const { return entered_; }

private:
    work_gate& gate_;
    bool entered_;
};

// Gives the gate back for a scope, if this thread holds it, and takes it again at the end: a
// panel waits for a person, and other work must not.
class gate_pause {
public:
    explicit gate_pause(work_gate& gate);
    ~gate_pause();
    gate_pause(const gate_pause&) = delete;
    gate_pause& operator=(const gate_pause&) = delete;

private:
    work_gate& gate_;
    bool paused_;
};
