// Says what has changed to people who hear the window instead of seeing it.
#pragma once

#include <QWidget>

// A part of the window that nobody sees: screen readers speak its text whenever it appears.
class announcement final : public QWidget {
public:
    explicit announcement(QWidget* window);

    // Appears with this text, unless it is the one that it said last.
    void say(const QString& text);
};

// Has a state told, once for each change of it: the same text again says nothing. `about` is any
// widget of the window that it is about. Interface thread.
void announce(QWidget* about, const QString& text);
