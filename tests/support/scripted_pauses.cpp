#include "tests/support/scripted_pauses.h"

#include <thread>
#include <utility>
#include <vector>

void scripted_pauses::on_nth(int nth, std::function<void()> action) {
    const mutex_scope lock(mutex_);
    actions_.emplace(slept_ + nth, std::move(action));
}

void scripted_pauses::on_every(std::function<void()> action) {
    const mutex_scope lock(mutex_);
    every_ = std::move(action);
}

void scripted_pauses::remark(std::function<std::string()> text) {
    const mutex_scope lock(mutex_);
    remark_ = std::move(text);
}

void scripted_pauses::reset() {
    const mutex_scope lock(mutex_);
    hurried_ = false;
    slept_ = 0;
    actions_.clear();
    every_ = nullptr;
    remark_ = nullptr;
}

void scripted_pauses::sleep(std::chrono::milliseconds time) {
    if (hurried_) {
        std::this_thread::yield();
        return;
    }
    std::vector<std::function<void()>> due;
    std::string line = "sleep(" + std::to_string(time.count()) + "ms)";
    {
        const mutex_scope lock(mutex_);
        line += remark_ ? remark_() : "";
        ++slept_;
        const auto [first, last] = actions_.equal_range(slept_);
        for (auto action = first; action != last; ++action) {
            due.push_back(action->second);
        }
        if (every_) {
            due.push_back(every_);
        }
    }
    log_.add(from_pauses, std::move(line));
    for (const std::function<void()>& action : due) {
        action();
    }
}

void scripted_pauses::sleep_until_woken(wake_point& /*point*/, std::chrono::milliseconds time) {
    sleep(time);
}
