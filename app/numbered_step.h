// One step of a short instruction: its number in a ring, and what to do.
#pragma once

#include <QWidget>

class text_field;

// Interface thread.
class numbered_step final : public QWidget {
public:
    explicit numbered_step(QWidget* parent);

    void set_step(int number, const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int number_ = 0;
    text_field* text_;
};
