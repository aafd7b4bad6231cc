// Panels that nobody sees.
#pragma once

#include <deque>
#include <functional>
#include <string>

#include "app/panel.h"
#include "tests/support/call_log.h"

// Writes every panel into the log and answers it as planned, by default with the first button.
// Interface thread.
class scripted_panels final : public panel_answers {
public:
    explicit scripted_panels(call_log& log) : log_(log) {}

    void answer(int next) { answers_.push_back(next); }
    // Runs while the coming panels are open.
    void while_open(std::function<void()> action) { action_ = std::move(action); }

    panel_request last; // that was asked

    int ask(const panel_request& request) override {
        last = request;
        static constexpr const char* kinds[] = {"warning", "error", "attention"};
        std::string line = std::string("panel ") + kinds[static_cast<int>(request.kind)] + " [" +
                           request.title + "] " + request.message;
        for (const std::string& button : request.buttons) {
            line += " (" + button + ")";
        }
        log_.add(from_window, line);
        if (action_) {
            action_();
        }
        if (answers_.empty()) {
            return panel_default;
        }
        const int given = answers_.front();
        answers_.pop_front();
        return given;
    }

private:
    call_log& log_;
    std::deque<int> answers_;
    std::function<void()> action_;
};
