#include "app/focus_memory.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "app/input_guard.h"
#include "app/krview.h"

namespace {

bool usable(const QWidget* widget) {
    return widget->isEnabled() && widget->isVisible() && widget->focusPolicy() != Qt::NoFocus;
}

} // namespace

focus_memory::focus_memory(const input_guard& guard, std::vector<QWidget*> waiting_places)
    : guard_(guard), places_(std::move(waiting_places)) {
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* from, QWidget* to) { moved(from, to); });
}

bool focus_memory::eventFilter(QObject* receiver, QEvent* event) {
    switch (event->type()) {
    case QEvent::EnabledChange:
    case QEvent::Hide:
    case QEvent::Show:
        if (receiver == held_ && !usable(held_)) {
            leave_held();
        } else if (receiver == lost_) {
            give_back();
        }
        break;
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
        if (waits_at(receiver) && guard_.idle()) {
            lost_ = nullptr; // the user goes on from here
        }
        break;
    default:
        break;
    }
    return false;
}

void focus_memory::moved(QWidget* from, QWidget* to) {
    const bool in_panel = guard_.topmost_panel() != nullptr;
    // The toolkit takes the focus away before it says why: see eventFilter().
    const bool driven_out = from != nullptr && from == held_ && !usable(from);
    if (to == nullptr || in_panel || driven_out) {
        return;
    }
    const bool on_background = dynamic_cast<krview*>(to) != nullptr;
    if (to->focusPolicy() == Qt::NoFocus || (on_background && lost_)) {
        wait();
        return;
    }
    held_ = to;
    if (waits_at(to) && lost_) {
        give_back();
    } else {
        lost_ = nullptr;
    }
}

void focus_memory::leave_held() {
    QWidget* gone = std::exchange(held_, nullptr);
    if (!lost_) {
        lost_ = gone; // else a waiting place has gone
    }
    if (guard_.topmost_panel() == nullptr) {
        wait();
    }
}

void focus_memory::wait() {
    const auto place = std::find_if(places_.begin(), places_.end(), usable);
    if (place != places_.end()) {
        (*place)->setFocus(Qt::OtherFocusReason);
    }
}

void focus_memory::give_back() {
    if (lost_ && usable(lost_) && guard_.topmost_panel() == nullptr) {
        lost_->setFocus(Qt::OtherFocusReason);
    }
}

bool focus_memory::waits_at(const QObject* place) const {
    return std::find(places_.begin(), places_.end(), place) != places_.end();
}
