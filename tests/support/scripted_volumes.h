// Volumes that are used as the test says.
#pragma once

#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "device/volume_uses.h"
#include "model/krtool.h"

// Unused until the test says otherwise. A look leaves no trace in the log. Any thread.
class scripted_volumes final : public volume_uses {
public:
    // From now on.
    void use(std::uint32_t device, std::vector<volume_use> uses) {
        const std::lock_guard lock(mutex_);
        uses_[device] = std::move(uses);
    }
    void mount(std::uint32_t device, const std::string& place) {
        use(device, {{volume_use_kind::mounted, "sdb1", place}});
    }
    // Runs before the n-th look from now on, counted from 1.
    void on_nth_look(int nth, std::function<void()> action) {
        const std::lock_guard lock(mutex_);
        actions_[looks_ + nth] = std::move(action);
    }
    int looks() const {
        const std::lock_guard lock(mutex_);
        return looks_;
    }
    void reset() {
        const std::lock_guard lock(mutex_);
        uses_.clear();
        actions_.clear();
    }

    std::vector<volume_use> of(std::uint32_t device) override {
        EXPECT_FALSE(j.records.held_here()) << "a look with the records lock held";
        EXPECT_FALSE(j.mutex.held_here()) << "a look with the library mutex held";
        if (const std::function<void()> action = next_action()) {
            action();
        }
        const std::lock_guard lock(mutex_);
        const auto found = uses_.find(device);
        return found == uses_.end() ? std::vector<volume_use>() : found->second;
    }

private:
    std::function<void()> next_action() {
        const std::lock_guard lock(mutex_);
        const auto planned = actions_.extract(++looks_);
        return planned ? planned.mapped() : nullptr;
    }

    mutable std::mutex mutex_;
    std::map<std::uint32_t, std::vector<volume_use>> uses_;
    std::map<int, std::function<void()>> actions_;
    int looks_ = 0;
};
