#include "model/exit_gate.h"

#include <cstdio>
#include <cstdlib>
#include <unistd.h>
#include <utility>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

#ifdef KESTREL_COVERAGE
extern "C" void __gcov_dump(void);
#endif

exit_gate::exit_gate(ending end, std::chrono::milliseconds patience)
    : end_(std::move(end)), patience_(patience) {}

void exit_gate::leave(int status) {
    {
        const auto end = std::chrono::steady_clock::now() + patience_;
        const mutex_scope lock(mutex_);
        leaving_ = true;
        while (writes_ > 0 && idle_.wait_until(mutex_, end) != std::cv_status::timeout) {
        }
    }
    end_(status);
}

bool exit_gate::begin_write() {
    const mutex_scope lock(mutex_);
    if (leaving_) {
        return false;
    }
    ++writes_;
    return true;
}

void exit_gate::end_write() {
    {
        const mutex_scope lock(mutex_);
        --writes_;
    }
    idle_.notify_all();
}

void exit_gate::end_process(int status) {
    std::fflush(stdout);
    std::fflush(stderr);
#if defined(__SANITIZE_ADDRESS__)
    __lsan_do_leak_check();
#endif
#ifdef KESTREL_COVERAGE
    __gcov_dump();
#endif
    _exit(status);
}
