// Which disk is copied onto which.
#pragma once

#include <QWidget>

// An arrow from one card to the other; its tip is at what is overwritten. Interface thread.
class data_arrow final : public QWidget {
public:
    explicit data_arrow(bool to_right);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const bool to_right_;
};
