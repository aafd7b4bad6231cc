// The main window's frame.
#pragma once

#include <QWidget>
#include <functional>
#include <string>

// Borderless and of fixed size; it draws nothing itself. Interface thread.
class main_window final : public QWidget {
public:
    static constexpr int width_of_content = 800;
    static constexpr int height_of_content = 630;

    // `close_wanted` is called when the desktop asks for the window to be closed.
    explicit main_window(std::function<void()> close_wanted);

    // Its lower left corner at that distance from the screen's, where the desktop lets a program
    // choose.
    void place_from_bottom_left(int x, int y);

    // Whether the user works with it now, so that what comes up in it is seen.
    bool in_front() const;
    // Shows it, minimised or not, over others and with the keyboard, as far as the desktop lets
    // it; `token` is the desktop's leave, or empty.
    void bring_to_front(const std::string& token);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    const std::function<void()> close_wanted_;
};
