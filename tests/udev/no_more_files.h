// A process that can open nothing more.
#pragma once

#include <sys/resource.h>

// While it lives, no file and no folder can be opened.
class no_more_files {
public:
    no_more_files() {
        ::getrlimit(RLIMIT_NOFILE, &former_);
        const rlimit none{0, former_.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &none);
    }
    ~no_more_files() { ::setrlimit(RLIMIT_NOFILE, &former_); }
    no_more_files(const no_more_files&) = delete;
    no_more_files& operator=(const no_more_files&) = delete;

private:
    rlimit former_{};
};
