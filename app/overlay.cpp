#include "app/overlay.h"

#include <QEventLoop>
#include <QFrame>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <QVariantAnimation>

#include "app/input_guard.h"
#include "app/placing.h"
#include "app/plain_text.h"

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

} // namespace

overlay_dialog::overlay_dialog(QWidget* parent) : QDialog(parent) {
    setWindowFlags(Qt::Widget);
}

QVBoxLayout* overlay_dialog::make_frame() {
    constexpr QMargins margins(27, 25, 27, 21); // inside the border
    auto* frame = with_role_at_once(new QFrame, "panel");
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(frame);
    auto* inner = new QVBoxLayout(frame);
    inner->setContentsMargins(margins);
    return inner;
}

QPushButton* overlay_dialog::make_button(const std::string& text, const char* name) {
    constexpr QSize least(112, 38);
    auto* button = new QPushButton(button_text(text));
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(one_line(text));
    button->setMinimumSize(least);
    // With the focus on it, the Return key means this button and not the default one.
    button->setAutoDefault(true);
    buttons_.append(button);
    return button;
}

void overlay_dialog::focus_default_button() {
    for (QPushButton* button : buttons_) {
        if (button->isDefault()) {
            button->setFocus(Qt::OtherFocusReason);
        }
    }
}

bool overlay_dialog::focusNextPrevChild(bool next) {
    const auto at = buttons_.indexOf(qobject_cast<QPushButton*>(focusWidget()));
    const auto count = buttons_.size();
    const auto step = next ? 1 : count - 1;
    buttons_[(at + step + count) % count]->setFocus(next ? Qt::TabFocusReason
                                                         : Qt::BacktabFocusReason);
    return true;
}

int run_over(QWidget* window, input_guard& guard,
             const std::function<overlay_dialog*(QWidget* parent)>& make) {
    // The window may be behind others, which have the focus then.
    const QPointer<QWidget> focused = window->window()->focusWidget();
    scrim shade(window);
    overlay_dialog* dialog = make(&shade);
    dialog->move((window->width() - dialog->width()) / 2,
                 (window->height() - dialog->height()) / 2);
    shade.show();
    shade.raise();
    guard.open_panel(dialog);
    dialog->show();
    dialog->focus_default_button();
    QEventLoop loop;
    // At once: another dialog may lie over this one and end later.
    QObject::connect(dialog, &QDialog::finished, &loop, [&] {
        guard.close_panel(dialog);
        loop.quit();
    });
    loop.exec();
    const bool usable = focused && focused->isEnabled() && focused->isVisible();
    (usable ? focused.data() : window)->setFocus();
    return dialog->result();
}
