// A console log that writes into the test's record.
#pragma once

#include "model/services.h"
#include "tests/support/call_log.h"

// Any thread.
class recording_log final : public console_log {
public:
    explicit recording_log(call_log& log) : log_(log) {}
    void line(const std::string& text) override {
        log_.add(from_console, "log(" + quoted(text) + ")");
    }

private:
    call_log& log_;
};
