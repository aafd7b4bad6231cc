// What the model needs around it in a storm.
#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <utility>

#include "enclosure/in_process_bench.h"
#include "model/services.h"
#include "model/system_services.h"
#include "tests/bench/bench_surroundings.h"

// A pause moves the enclosures' clock on and lets other threads run.
class virtual_pauses final : public pauses {
public:
    explicit virtual_pauses(enclosure::in_process_bench& bench) : bench_(bench) {}

    void sleep(std::chrono::milliseconds time) override {
        bench_.advance(time);
        std::this_thread::yield();
    }
    void sleep_until_woken(wake_point& /*point*/, std::chrono::milliseconds time) override {
        sleep(time);
    }

private:
    enclosure::in_process_bench& bench_;
};

// Real threads that are counted.
class counted_threads final : public thread_starter {
public:
    bool start(std::function<void()> body) override {
        ++running_;
        ++started_;
        return real_.start([this, run = std::move(body)] {
            run();
            --running_;
        });
    }
    int running() const { return running_; }
    int started() const { return started_; }

private:
    detached_threads real_;
    std::atomic<int> running_{0};
    std::atomic<int> started_{0};
};

// Does what the real window does for the model, and shows nothing.
class storm_window final : public no_window {
public:
    // What happens when the model asks for the end of the process.
    explicit storm_window(std::function<void()> on_error) : on_error_(std::move(on_error)) {}

    void update_controller_list() override {}
    void select_first_controller() override;
    void update_raid_information() override;
    void startworking() override { ++rescans_; }
    void refresh() override;
    void show_error_and_exit(const std::string& /*message*/) override { on_error_(); }

    int rescans() const { return rescans_; }

private:
    std::atomic<int> rescans_{0};
    std::function<void()> on_error_;
};
