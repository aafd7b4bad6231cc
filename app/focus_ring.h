// Shows where the keyboard's focus is.
#pragma once

#include <QFocusFrame>
#include <QObject>
#include <QPointer>

class QWidget;

// A ring around a control, above everything in its window. Interface thread.
class focus_ring final : public QFocusFrame {
public:
    static constexpr int line = 2;                // pixels
    static constexpr int distance = 2;            // from the control
    static constexpr int reach = line + distance; // what the style has to answer as margins

    using QFocusFrame::QFocusFrame;

protected:
    void paintEvent(QPaintEvent* event) override;
};

// Puts the ring around whatever has the focus, as long as the user works with the keys: a click
// takes it away, the next key brings it back. The style must answer for the ring's margins. One for
// the program. Interface thread.
class focus_display final : public QObject {
public:
    explicit focus_display(QObject* parent);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void show_by_keys(bool by_keys);
    void show_around(QWidget* focused);

    QPointer<focus_ring> ring_; // its window may take it along
    bool by_keys_ = false;
};
