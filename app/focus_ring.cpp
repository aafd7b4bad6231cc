#include "app/focus_ring.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QTabBar>

#include "app/krview.h"

namespace {

// What the eye takes for the control.
QWidget* seen_control(QWidget* focused) {
    QWidget* around = focused->parentWidget();
    const bool in_row = around != nullptr && around->property("role") == QLatin1String("radiorow");
    return in_row ? around : focused;
}

// Lists that open over the window show their place themselves, and the background is no control.
bool gets_ring(const QWidget* focused) {
    return focused != nullptr && focused->focusPolicy() != Qt::NoFocus &&
           dynamic_cast<const krview*>(focused) == nullptr &&
           focused->window()->windowType() != Qt::Popup;
}

int corner_radius(const QWidget* control) {
    constexpr int of_controls = 8;
    constexpr int of_tabs = 10;
    constexpr int of_plates = 12;
    if (qobject_cast<const QTabBar*>(control) != nullptr) {
        return of_tabs;
    }
    return control->property("kind") == QLatin1String("page") ? of_plates : of_controls;
}

bool is_modifier(int key) {
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt ||
           key == Qt::Key_AltGr || key == Qt::Key_Meta;
}

bool comes_from_keys(Qt::FocusReason reason) {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

} // namespace

void focus_ring::paintEvent(QPaintEvent* /*event*/) {
    constexpr int wider_radius = 3;
    const QWidget* control = widget();
    if (control == nullptr) {
        return;
    }
    QRect inside = control->rect();
    if (const auto* tabs = qobject_cast<const QTabBar*>(control); tabs != nullptr) {
        inside = tabs->tabRect(tabs->currentIndex());
    }
    constexpr double to_middle = distance + line / 2.0;
    const QRectF ring = QRectF(inside.translated(reach, reach))
                            .adjusted(-to_middle, -to_middle, to_middle, to_middle);
    const double radius = corner_radius(control) + wider_radius;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0xb9, 0xe6, 0xfa), line));
    painter.drawRoundedRect(ring, radius, radius);
}

focus_display::focus_display(QObject* parent) : QObject(parent) {
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { show_around(now); });
}

bool focus_display::eventFilter(QObject* /*receiver*/, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        if (!is_modifier(static_cast<QKeyEvent*>(event)->key())) {
            show_by_keys(true);
        }
        break;
    case QEvent::MouseButtonPress:
        show_by_keys(false);
        break;
    case QEvent::FocusIn:
        by_keys_ = by_keys_ || comes_from_keys(static_cast<QFocusEvent*>(event)->reason());
        break;
    default:
        break;
    }
    return false;
}

void focus_display::show_by_keys(bool by_keys) {
    if (by_keys != by_keys_) {
        by_keys_ = by_keys;
        show_around(QApplication::focusWidget());
    }
}

void focus_display::show_around(QWidget* focused) {
    const bool seen = by_keys_ && gets_ring(focused);
    if (!ring_) {
        if (!seen) {
            return;
        }
        ring_ = new focus_ring(focused->window());
    }
    ring_->setWidget(seen ? seen_control(focused) : nullptr);
    ring_->update();
}
