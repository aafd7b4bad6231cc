// A text field of the window.
#pragma once

#include <QFont>
#include <QLabel>
#include <QString>

// Shows plain text, whatever it holds; one line is cut in its middle when it is too long, and is
// whole in the tip then. Interface thread.
class text_field final : public QLabel {
public:
    explicit text_field(QWidget* parent);

    // Plain text; what follows it shows the same.
    void set_value(const QString& value);
    // A tag: as wide as its text and nothing when empty, at the left or the right edge of the
    // place that it has now.
    void fit_text(Qt::Alignment edge);
    // Another field that repeats this one.
    void repeat_in(text_field* follower) { follower_ = follower; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    bool too_long() const;
    int width_of_text() const;
    void fit();
    void show_tip();

    text_field* follower_ = nullptr;
    QRect fitted_place_; // of a tag
    Qt::Alignment fitted_edge_;
    mutable QString measured_; // the text that was measured last
    mutable QFont measured_in_;
    mutable int measured_width_ = 0; // pixels
};
