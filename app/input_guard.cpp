#include "app/input_guard.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QWidget>
#include <algorithm>

namespace {

bool is_input(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

// The widget that an event is about; none for windows, which hand it on to a widget.
const QWidget* widget_of(const QObject* receiver) {
    while (receiver != nullptr && !receiver->isWidgetType()) {
        receiver = receiver->isWindowType() ? nullptr : receiver->parent();
    }
    return static_cast<const QWidget*>(receiver);
}

// An open list of choices would keep the input to itself.
void close_popups() {
    while (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
    }
}

// A key that is held down after one panel must not answer the next.
bool repeats_an_answer(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& press = static_cast<const QKeyEvent&>(event);
    return press.isAutoRepeat() && (press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter ||
                                    press.key() == Qt::Key_Space);
}

// Actions are asked for one at a time, however long their key is held.
bool is_repeated_shortcut(const QEvent& event) {
    return event.type() == QEvent::ShortcutOverride &&
           static_cast<const QKeyEvent&>(event).isAutoRepeat();
}

bool inside(const QWidget* widget, const QWidget* area) {
    return area != nullptr && (widget == area || area->isAncestorOf(widget));
}

} // namespace

input_guard::input_guard() {
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { keep_focus_in_panel(now); });
}

void input_guard::always_serve(QWidget* widget, bool behind_panels) {
    always_.push_back({widget, behind_panels});
}

void input_guard::begin_work() {
    close_popups();
    ++works_;
}

void input_guard::end_work() {
    --works_;
}

void input_guard::open_panel(QWidget* panel) {
    close_popups();
    panels_.emplace_back(panel);
    for (const served& one : always_) {
        if (one.behind_panels && one.widget) {
            one.widget->raise();
        }
    }
}

void input_guard::close_panel(QWidget* panel) {
    panels_.erase(std::remove(panels_.begin(), panels_.end(), panel), panels_.end());
}

QWidget* input_guard::topmost_panel() const {
    return panels_.empty() ? nullptr : panels_.back().data();
}

bool input_guard::eventFilter(QObject* receiver, QEvent* event) {
    if (is_repeated_shortcut(*event)) {
        event->accept(); // the key may still scroll or edit
        return true;
    }
    if (idle() || !is_input(event->type())) {
        return false;
    }
    if (topmost_panel() != nullptr && repeats_an_answer(*event)) {
        return true;
    }
    const QWidget* widget = widget_of(receiver);
    return widget != nullptr && !serves(widget);
}

// A click beside a panel gives the focus away before any filter can drop it.
void input_guard::keep_focus_in_panel(const QWidget* focused) const {
    QWidget* panel = topmost_panel();
    if (panel == nullptr || focused == nullptr || inside(focused, panel)) {
        return;
    }
    QWidget* last = panel->focusWidget();
    (last != nullptr ? last : panel)->setFocus();
}

bool input_guard::serves(const QWidget* widget) const {
    const bool panel_open = !panels_.empty();
    const bool always = std::any_of(always_.begin(), always_.end(), [&](const served& one) {
        return one.widget == widget && (one.behind_panels || !panel_open);
    });
    return always || inside(widget, topmost_panel());
}
