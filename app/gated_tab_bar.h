// A tab bar whose tabs the user can only ask for.
#pragma once

#include <QTabBar>
#include <functional>

// Mouse, wheel, keys and assistive programs lead to a request; the tab in front changes only
// through bring_to_front(). Interface thread.
class gated_tab_bar final : public QTabBar {
public:
    explicit gated_tab_bar(QWidget* parent);

    // Is called with the index of the tab that the user wants in front.
    void set_request(std::function<void(int index)> request);
    void bring_to_front(int index);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void ask_for(int index);

    std::function<void(int index)> request_;
    int front_ = -1;
};
