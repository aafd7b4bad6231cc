// The background view.
#pragma once

#include <QImage>
#include <QPoint>
#include <QWidget>
#include <optional>

// Paints the window's picture; what is no control on it moves the window. Interface thread.
class krview final : public QWidget {
public:
    explicit krview(QWidget* parent = nullptr) : QWidget(parent) {}

    void awakeFromNib();
    // Stretches the picture over the whole view, replacing what is below.
    void drawRect();
    // For a picture other than the program's own.
    void set_back(const QImage& picture);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QImage back;
    std::optional<QPoint> pressed_at_; // on the screen, until the move begins
};
