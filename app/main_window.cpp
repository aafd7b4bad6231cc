#include "app/main_window.h"

#include <QCloseEvent>
#include <QScreen>
#include <utility>

#include "app/launch_token.h"

main_window::main_window(std::function<void()> close_wanted)
    : close_wanted_(std::move(close_wanted)) {
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setFixedSize(width_of_content, height_of_content);
}

void main_window::place_from_bottom_left(int x, int y) {
    const QRect area = screen()->geometry();
    // On a low screen the head of the window counts more than the distance from the bottom.
    const QRect usable = screen()->availableGeometry();
    move(area.left() + x, qMax(area.bottom() + 1 - y - height(), usable.top()));
}

bool main_window::in_front() const {
    return isActiveWindow() && !isMinimized();
}

void main_window::bring_to_front(const std::string& token) {
    use_launch_token(token);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void main_window::closeEvent(QCloseEvent* event) {
    event->ignore();
    close_wanted_();
}
