// The verdict on the array: icon, word and colour.
#pragma once

#include <QFrame>

class QLabel;
class text_field;

// Grows to the left from its right edge, as wide as its word. Interface thread.
class verdict_pill final : public QFrame {
public:
    explicit verdict_pill(QWidget* parent);

    // `state` is "ok", "warn", "err", "busy" or "none": the tone of the style and the name
    // of the icon.
    void show_verdict(const char* state, const QString& word);

private:
    QLabel* icon_;
    text_field* word_;
};
