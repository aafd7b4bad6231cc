// Notices that go nowhere.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "app/notices.h"

// Writes down what is shown and closed. Interface thread.
class recording_notices final : public notices {
public:
    std::vector<std::string> log;

    // What a click on the notice does.
    void choose(const std::string& token) { opened_(token); }

    void when_opened(std::function<void(const std::string& token)> opened) override {
        opened_ = std::move(opened);
    }

    int show(const notice& what) override {
        log.push_back("show " + std::to_string(++shown_) + (what.urgent ? " urgent [" : " [") +
                      what.title + "] " + what.text + " (" + what.open_label + ")");
        return shown_;
    }

    void close(int shown) override { log.push_back("close " + std::to_string(shown)); }

    void hand_over() override { log.push_back("hand over"); }

private:
    std::function<void(const std::string& token)> opened_;
    int shown_ = 0;
};
