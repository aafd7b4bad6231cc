// The window, as the model sees it.
#pragma once

#include <cstdint>
#include <string>

// Exactly the window operations that the model calls. Any thread may call; the call returns when
// the operation is done, so a panel keeps its caller until it has been answered. No caller holds
// the library mutex or the records lock.
class window {
public:
    virtual ~window() = default;

    // Status display.
    virtual void cleargui() = 0;
    virtual void update_raid_information() = 0;
    virtual void showrebuildbuttons() = 0;

    // Controller list.
    virtual void clear_controller_list() = 0;
    virtual void update_controller_list() = 0;
    virtual void select_first_controller() = 0;

    // Busy indicator.
    virtual void startworking() = 0;
    virtual void stopworking() = 0;

    // Buttons and rebuild progress. LBAs count 512-byte sectors.
    virtual void disablegui(bool rebuild_only) = 0;
    virtual void startprogressbar() = 0;
    virtual void stopprogressbar() = 0;
    virtual void updatepoll(std::uint64_t end, std::uint64_t currlba, bool diskp100) = 0;

    // Panels. show_error_and_exit ends the process with status 3 and does not return.
    virtual void show_message(const std::string& text) = 0;
    virtual void show_hot_swap_message() = 0;
    virtual void show_error_and_exit(const std::string& message) = 0;

    // Reads everything again, on the caller's thread.
    virtual void refresh() = 0;

    // Device tree.
    virtual void refreshtree() = 0;
    virtual void expandtree() = 0;
};
