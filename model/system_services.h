// The services as the running system gives them.
#pragma once

#include "model/services.h"

// The steady clock.
class steady_pauses final : public pauses {
public:
    void sleep(std::chrono::milliseconds time) override;
    void sleep_until_woken(wake_point& point, std::chrono::milliseconds time) override;
};

class system_clock final : public wall_clock {
public:
    std::time_t now() override;
};

class detached_threads final : public thread_starter {
public:
    bool start(std::function<void()> body) override;
};

// syslog at notice level under the program's name.
class system_log final : public console_log {
public:
    void line(const std::string& text) override;
};
