// A process that can open nothing more.
#pragma once

#include <sys/resource.h>
#include <unistd.h>

// While it lives, no file and no folder can be opened; those that are open can still be polled,
// which a lower limit would forbid.
class no_more_files {
public:
    no_more_files() {
        ::getrlimit(RLIMIT_NOFILE, &former_);
        const int next = ::dup(STDERR_FILENO);
        ::close(next);
        const rlimit none{static_cast<rlim_t>(next), former_.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &none);
    }
    ~no_more_files() { ::setrlimit(RLIMIT_NOFILE, &former_); }
    no_more_files(const no_more_files&) = delete;
    no_more_files& operator=(const no_more_files&) = delete;

private:
    rlimit former_{};
};
