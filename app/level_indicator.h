// The bar of the rebuild progress.
#pragma once

#include <QProgressBar>

class QVariantAnimation;

// 0 to 100 per cent. Interface thread.
class level_indicator final : public QProgressBar {
public:
    explicit level_indicator(QWidget* parent);

    // Glides there where the desktop wants motion. Any number; what is beyond the ends is shown as
    // the end.
    void set_level(double percent);
    // Nothing moves: the bar loses its light.
    void set_stalled(bool stalled);
    double level() const { return level_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void show_level(double percent);

    double level_ = 0.0;
    double shown_ = 0.0; // on its way to the level
    bool stalled_ = false;
    QVariantAnimation* glide_;
};
