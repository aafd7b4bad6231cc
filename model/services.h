// What the model takes from its surroundings. main hands in the real ones, tests their own.
#pragma once

#include <chrono>
#include <ctime>
#include <functional>
#include <string>
#include <string_view>

class access_library;
class device_registry;
class hotplug_source;
class volume_uses;
class exit_gate;
class wake_point;

// Waiting. Any thread.
class pauses {
public:
    virtual ~pauses() = default;
    virtual void sleep(std::chrono::milliseconds time) = 0;
    // Sleeps for `time`, or less once `point` is woken.
    virtual void sleep_until_woken(wake_point& point, std::chrono::milliseconds time) = 0;
};

// The wall clock, for time stamps. Any thread.
class wall_clock {
public:
    virtual ~wall_clock() = default;
    virtual std::time_t now() = 0;
};

// Threads that run for themselves. Any thread.
class thread_starter {
public:
    virtual ~thread_starter() = default;
    // Runs `body` on a new, detached thread. False: there is no thread to be had.
    virtual bool start(std::function<void()> body) = 0;
};

// The platform's console log. Any thread.
class console_log {
public:
    virtual ~console_log() = default;
    virtual void line(const std::string& text) = 0;
};

// The string tables. Any thread; a key without a text yields the key itself.
class text_lookup {
public:
    virtual ~text_lookup() = default;
    virtual std::string text(std::string_view key) const = 0;
};

// References only: everything named here outlives the model.
struct services {
    access_library& library;
    device_registry& registry;
    hotplug_source& hotplug;
    pauses& pause;
    wall_clock& clock;
    thread_starter& threads;
    console_log& console;
    const text_lookup& texts;
    exit_gate& exit;
    volume_uses& volumes;
};
