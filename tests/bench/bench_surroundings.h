// What the model needs around it in measurements and storms: nothing that takes time of its own.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include "device/volume_uses.h"
#include "model/device_tree.h"
#include "model/services.h"
#include "model/window.h"

// Adds up the designed pauses instead of making them.
class counted_pauses final : public pauses {
public:
    void sleep(std::chrono::milliseconds time) override { total += time; }
    void sleep_until_woken(wake_point& /*point*/, std::chrono::milliseconds time) override {
        total += time;
    }

    std::chrono::milliseconds total{0};
};

class no_threads final : public thread_starter {
public:
    bool start(std::function<void()> /*body*/) override { return true; }
};

class no_log final : public console_log {
public:
    void line(const std::string& /*text*/) override {}
};

class no_volumes final : public volume_uses {
public:
    std::vector<volume_use> of(std::uint32_t /*device*/) override { return {}; }
};

class keys_only final : public text_lookup {
public:
    std::string text(std::string_view key) const override { return std::string(key); }
};

class no_tree final : public device_tree {
public:
    void cleartree() override {}
    void addchipFirewire(bool /*firewire*/) override {}
    void addraid(std::int32_t /*position*/, const std::string& /*withstring*/) override {}
    void adddisk(std::int32_t /*position*/, const std::string& /*withstring*/,
                 bool /*Raid*/) override {}
};

class no_window : public window {
public:
    void cleargui() override {}
    void update_raid_information() override {}
    void showrebuildbuttons() override {}
    void clear_controller_list() override {}
    void update_controller_list() override;
    void select_first_controller() override {}
    void startworking() override {}
    void stopworking() override {}
    void disablegui(bool /*rebuild_only*/) override {}
    void startprogressbar() override {}
    void stopprogressbar() override {}
    void updatepoll(std::uint64_t /*end*/, std::uint64_t /*currlba*/, bool /*diskp100*/) override {}
    void show_message(const std::string& /*text*/) override {}
    void show_hot_swap_message() override {}
    void show_error_and_exit(const std::string& message) override;
    void refresh() override {}
    void refreshtree() override {}
    void expandtree() override {}
};
