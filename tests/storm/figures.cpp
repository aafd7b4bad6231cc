#include "tests/storm/figures.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

long status_line(const std::string& name) {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word) {
        if (word == name + ":") {
            long value = 0;
            status >> value;
            return value;
        }
    }
    return 0;
}

template<class Samples>
bool compare(const Samples& all, const char* what, long figures::*member, long allowed) {
    const auto less = [member](const figures& one, const figures& other) {
        return one.*member < other.*member;
    };
    const auto middle = all.begin() + std::ssize(all) / 2;
    const long first = (*std::max_element(all.begin(), middle, less)).*member;
    const long second = (*std::max_element(middle, all.end(), less)).*member;
    std::printf("%s: first half %ld at most, second half %ld\n", what, first, second);
    return second <= first + allowed;
}

} // namespace

figures figures::now() {
    const std::filesystem::directory_iterator descriptors("/proc/self/fd");
    return {std::distance(begin(descriptors), end(descriptors)), status_line("Threads"),
            status_line("VmRSS")};
}

bool figure_log::flat() const {
    constexpr long few = 3;
    // Each thread's first allocations and each copy's buffer take a few megabytes at once, whenever
    // they come. A sanitizer keeps what was freed for a while, and its own records of it.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    constexpr long memory = 32768;
#else
    constexpr long memory = 8192;
#endif
    const bool descriptors = compare(all_, "descriptors", &figures::descriptors, few);
    const bool threads = compare(all_, "threads", &figures::threads, few);
    return compare(all_, "KiB of memory", &figures::memory, memory) && descriptors && threads;
}
