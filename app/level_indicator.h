// The bar of the rebuild progress.
#pragma once

#include <QProgressBar>

// 0 to 100 per cent. Interface thread.
class level_indicator final : public QProgressBar {
public:
    explicit level_indicator(QWidget* parent);

    // Any number; what is beyond the ends is shown as the end.
    void set_level(double percent);
    double level() const { return level_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double level_ = 0.0;
};
