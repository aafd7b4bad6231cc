#include "app/overlay.h"

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QVariantAnimation>

#include "app/input_guard.h"

namespace {

// What dims the window; it darkens in a moment where the desktop wants motion.
class scrim final : public QWidget {
public:
    explicit scrim(QWidget* window) : QWidget(window), fade_(new QVariantAnimation(this)) {
        setGeometry(window->rect());
        fade_->setDuration(fade_time);
        fade_->setStartValue(0.0);
        fade_->setEndValue(1.0);
        connect(fade_, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
            darkness_ = value.toDouble();
            update();
        });
        if (style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0) {
            darkness_ = 0.0;
            fade_->start();
        }
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        constexpr double corner = 14.0;
        constexpr double full = 0.66;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor::fromRgbF(0x07 / 255.0F, 0x0a / 255.0F, 0x0d / 255.0F,
                                          static_cast<float>(full * darkness_)));
        painter.drawRoundedRect(rect(), corner, corner);
    }

private:
    static constexpr int fade_time = 120; // ms

    QVariantAnimation* fade_;
    double darkness_ = 1.0;
};

// Where a screen reader starts: it reads the dialog around the button first. A focus proxy of the
// dialog would have it say that both have the focus.
void focus_default_button(const QDialog& dialog) {
    for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
        if (button->isDefault()) {
            button->setFocus(Qt::OtherFocusReason);
        }
    }
}

} // namespace

int run_over(QWidget* window, input_guard& guard,
             const std::function<QDialog*(QWidget* parent)>& make) {
    const QPointer<QWidget> focused = QApplication::focusWidget();
    scrim shade(window);
    QDialog* dialog = make(&shade);
    dialog->move((window->width() - dialog->width()) / 2,
                 (window->height() - dialog->height()) / 2);
    shade.show();
    shade.raise();
    guard.open_panel(dialog);
    dialog->show();
    focus_default_button(*dialog);
    QEventLoop loop;
    QObject::connect(dialog, &QDialog::finished, &loop, &QEventLoop::quit);
    loop.exec();
    guard.close_panel(dialog);
    const bool usable = focused && focused->isEnabled() && focused->isVisible();
    (usable ? focused.data() : window)->setFocus();
    return dialog->result();
}
