// A window without a picture: it selects as the program's does and tells of every change.
#pragma once

#include "model/window.h"

#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <vector>

// Any thread.
class desk_window final : public window {
public:
    // Waits until `reached` holds, which is asked after every call of the model. A wait of two
    // minutes without it throws std::runtime_error.
    void await(const std::string& what, const std::function<bool()>& reached);

    // Texts of the messages so far, and "hot swap" for each report of one.
    std::vector<std::string> messages();

    void cleargui() override { changed(); }
    void update_raid_information() override;
    void showrebuildbuttons() override { changed(); }
    void clear_controller_list() override { changed(); }
    void update_controller_list() override { changed(); }
    void select_first_controller() override;
    void startworking() override { changed(); }
    void stopworking() override { changed(); }
    void disablegui(bool) override { changed(); }
    void startprogressbar() override { changed(); }
    void stopprogressbar() override { changed(); }
    void updatepoll(std::uint64_t end, std::uint64_t currlba, bool diskp100) override;
    void show_message(const std::string& text) override;
    void show_hot_swap_message() override { show_message("hot swap"); }
    void show_error_and_exit(const std::string& message) override;
    void refresh() override;
    void refreshtree() override { changed(); }
    void expandtree() override { changed(); }

private:
    void changed();

    std::mutex mutex_;
    std::condition_variable wake_;
    std::uint64_t changes_ = 0;
    std::vector<std::string> messages_;
};
