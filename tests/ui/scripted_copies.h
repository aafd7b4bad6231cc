// Safety copies that go nowhere.
#pragma once

#include <string>

#include "app/safety_copy.h"
#include "tests/support/call_log.h"

// Writes into the log that a copy is kept, and keeps the last one for the test. Worker threads.
class scripted_copies final : public copy_keeper {
public:
    explicit scripted_copies(call_log& log) : log_(log) {}

    std::string trouble; // why the coming copies cannot be kept
    std::string last;
    std::function<void()> while_kept; // runs when a copy is kept

    std::string keep(const std::string& text, std::time_t /*now*/) override {
        log_.add(from_window, trouble.empty() ? "copy kept" : "copy not kept");
        last = text;
        if (while_kept) {
            while_kept();
        }
        return trouble;
    }

private:
    call_log& log_;
};
