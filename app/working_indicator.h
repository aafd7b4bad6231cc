// The busy indicator.
#pragma once

#include <QTimer>
#include <QWidget>

// Turns, and is seen, from start to stop. Interface thread.
class working_indicator final : public QWidget {
public:
    explicit working_indicator(QWidget* parent);

    void start_animation();
    void stop_animation();
    bool animated() const { return animated_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void turn();

    QTimer timer_;
    bool animated_ = false;
    int step_ = 0;
};
