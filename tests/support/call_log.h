// The one record of everything that happens in a test, in the order in which it happens.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "util/mutex.h"
#include "util/thread_annotations.h"

// Who a line comes from; values add up to a choice of several.
enum call_source : std::uint32_t {
    from_library = 1U << 0,
    from_window = 1U << 1,
    from_pauses = 1U << 2,
    from_registry = 1U << 3,
    from_hotplug = 1U << 4,
    from_console = 1U << 5,
    from_threads = 1U << 6,
    from_tree = 1U << 7,
    from_diagnostics = 1U << 8,
    from_exit = 1U << 9,
    from_everybody = 0xFFFFFFFFU,
};

// Any thread.
class call_log {
public:
    // Lines from sources outside `sources` are not kept from now on.
    void keep_only(std::uint32_t sources);
    void add(call_source source, std::string text);
    void clear();

    // The lines so far that come from one of `sources`.
    std::vector<std::string> lines(std::uint32_t sources = from_everybody) const;
    // The same, and forgets everything.
    std::vector<std::string> take(std::uint32_t sources = from_everybody);
    // How many lines begin with `beginning`.
    std::size_t count(const std::string& beginning) const;
    // Blocks until at least `times` lines begin with `beginning`.
    void await(const std::string& beginning, std::size_t times = 1) const;

private:
    std::size_t matches(const std::string& beginning) const REQUIRES(mutex_);

    mutable plain_mutex mutex_;
    mutable std::condition_variable_any grown_;
    std::uint32_t kept_ GUARDED_BY(mutex_) = from_everybody;
    std::vector<std::pair<call_source, std::string>> lines_ GUARDED_BY(mutex_);
};

// Text in double quotes, as the lines show it.
std::string quoted(const std::string& text);
// "0x11".
std::string hex(std::uint64_t value);
// "true" or "false".
std::string yes_no(bool value);
