// A window that only writes down what it is told.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "model/window.h"
#include "tests/support/call_log.h"
#include "util/mutex.h"
#include "util/thread_annotations.h"

// Thrown where the process would have ended.
struct process_ended {
    int status = 0;
};

// Any thread.
class recording_window final : public window {
public:
    explicit recording_window(call_log& log) : log_(log) {}

    // Runs `action` in every coming call of `operation` ("refresh"), after its line was written.
    void on(const std::string& operation, std::function<void()> action);
    // Runs in every call, before its line is written.
    void on_call(std::function<void()> every);
    void reset();

    void cleargui() override;
    void update_raid_information() override;
    void showrebuildbuttons() override;
    void clear_controller_list() override;
    void update_controller_list() override;
    void select_first_controller() override;
    void startworking() override;
    void stopworking() override;
    void disablegui(bool rebuild_only) override;
    void startprogressbar() override;
    void stopprogressbar() override;
    void updatepoll(std::uint64_t end, std::uint64_t currlba, bool diskp100) override;
    void show_message(const std::string& text) override;
    void show_hot_swap_message() override;
    // Throws process_ended with status 3.
    void show_error_and_exit(const std::string& message) override;
    void refresh() override;
    void refreshtree() override;
    void expandtree() override;

private:
    void called(const std::string& operation, const std::string& arguments = "");

    call_log& log_;
    plain_mutex mutex_;
    std::map<std::string, std::function<void()>> actions_ GUARDED_BY(mutex_);
    std::function<void()> every_ GUARDED_BY(mutex_);
};
