// The one way out of the process.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>

#include "util/mutex.h"

// Keeps the end of the process from falling between the write of a sector and its read-back.
// Any thread.
class exit_gate {
public:
    // How the process ends; the default flushes the standard streams and leaves at once with
    // that status, running no destructors under living threads.
    using ending = std::function<void(int status)>;

    explicit exit_gate(ending end = end_process,
                       std::chrono::milliseconds patience = std::chrono::seconds(2));

    // Ends the process with `status` (0 or 3), after waiting for a sector in flight, at most
    // for the time given to the constructor. From here on no new write begins.
    void leave(int status);

    // Begins the write of a sector. False once the process is leaving: do not write.
    bool begin_write();
    void end_write();

    static void end_process(int status);

private:
    const ending end_;
    const std::chrono::milliseconds patience_;
    plain_mutex mutex_;
    std::condition_variable_any idle_;
    int writes_ GUARDED_BY(mutex_) = 0;
    bool leaving_ GUARDED_BY(mutex_) = false;
};

// A sector in flight, for a scope.
class write_in_flight {
public:
    explicit write_in_flight(exit_gate& gate) : gate_(gate), allowed_(gate.begin_write()) {}
    ~write_in_flight() {
        if (allowed_) {
            gate_.end_write();
        }
    }
    write_in_flight(const write_in_flight&) = delete;
    write_in_flight& operator=(const write_in_flight&) = delete;
    explicit operator bool() const { return allowed_; }

private:
    exit_gate& gate_;
    bool allowed_;
};
