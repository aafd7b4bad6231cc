// What a fuzz target holds to be true, whatever it was given.
#pragma once

#include <cstdio>
#include <cstdlib>

// Ends the process, so that the fuzzer keeps the input that did it.
inline void require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}
