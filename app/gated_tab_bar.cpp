#include "app/gated_tab_bar.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QWheelEvent>
#include <utility>

gated_tab_bar::gated_tab_bar(QWidget* parent) : QTabBar(parent) {
    setDrawBase(false);
    setExpanding(false);
    // The way in that cannot be asked beforehand, an assistive program's: it is undone before
    // anything is painted, and asked for in the ordinary way.
    connect(this, &QTabBar::currentChanged, this, [this](int index) {
        bring_to_front(front_);
        ask_for(index);
    });
}

void gated_tab_bar::set_request(std::function<void(int index)> request) {
    request_ = std::move(request);
}

void gated_tab_bar::bring_to_front(int index) {
    const QSignalBlocker quiet(this);
    front_ = index;
    setCurrentIndex(index);
    window()->update(); // the ring of the focus reaches beyond the bar
}

void gated_tab_bar::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        ask_for(tabAt(event->position().toPoint()));
    }
}

void gated_tab_bar::wheelEvent(QWheelEvent* event) {
    const int delta = event->angleDelta().y();
    if (delta != 0) {
        ask_for(currentIndex() + (delta < 0 ? 1 : -1));
    }
    event->accept();
}

void gated_tab_bar::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
        ask_for(currentIndex() - 1);
        return;
    case Qt::Key_Right:
        ask_for(currentIndex() + 1);
        return;
    case Qt::Key_Home:
        ask_for(0);
        return;
    case Qt::Key_End:
        ask_for(count() - 1);
        return;
    default:
        event->ignore();
    }
}

void gated_tab_bar::ask_for(int index) {
    if (index >= 0 && index < count() && index != currentIndex() && request_) {
        request_(index);
    }
}
