#include "tests/support/recording_window.h"

#include <utility>

void recording_window::on(const std::string& operation, std::function<void()> action) {
    const mutex_scope lock(mutex_);
    actions_[operation] = std::move(action);
}

void recording_window::on_call(std::function<void()> every) {
    const mutex_scope lock(mutex_);
    every_ = std::move(every);
}

void recording_window::reset() {
    const mutex_scope lock(mutex_);
    actions_.clear();
    every_ = nullptr;
}

void recording_window::called(const std::string& operation, const std::string& arguments) {
    std::function<void()> every;
    std::function<void()> action;
    {
        const mutex_scope lock(mutex_);
        every = every_;
        const auto found = actions_.find(operation);
        if (found != actions_.end()) {
            action = found->second;
        }
    }
    if (every) {
        every();
    }
    log_.add(from_window, operation + "(" + arguments + ")");
    if (action) {
        action();
    }
}

void recording_window::cleargui() {
    called("cleargui");
}
void recording_window::update_raid_information() {
    called("update_raid_information");
}
void recording_window::showrebuildbuttons() {
    called("showrebuildbuttons");
}
void recording_window::clear_controller_list() {
    called("clear_controller_list");
}
void recording_window::update_controller_list() {
    called("update_controller_list");
}
void recording_window::select_first_controller() {
    called("select_first_controller");
}
void recording_window::startworking() {
    called("startworking");
}
void recording_window::stopworking() {
    called("stopworking");
}

void recording_window::disablegui(bool rebuild_only) {
    called("disablegui", yes_no(rebuild_only));
}

void recording_window::startprogressbar() {
    called("startprogressbar");
}
void recording_window::stopprogressbar() {
    called("stopprogressbar");
}

void recording_window::updatepoll(std::uint64_t end, std::uint64_t currlba, bool diskp100) {
    called("updatepoll",
           std::to_string(end) + ", " + std::to_string(currlba) + ", " + yes_no(diskp100));
}

void recording_window::show_message(const std::string& text) {
    called("show_message", quoted(text));
}

void recording_window::show_hot_swap_message() {
    called("show_hot_swap_message");
}

void recording_window::show_error_and_exit(const std::string& message) {
    called("show_error_and_exit", quoted(message));
    throw process_ended{3};
}

void recording_window::refresh() {
    called("refresh");
}
void recording_window::refreshtree() {
    called("refreshtree");
}
void recording_window::expandtree() {
    called("expandtree");
}
