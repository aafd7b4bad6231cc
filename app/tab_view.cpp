#include "app/tab_view.h"

#include <QFrame>
#include <QKeyEvent>
#include <QStackedWidget>
#include <utility>

#include "app/gated_tab_bar.h"
#include "app/pictures.h"

tab_view::tab_view(QWidget* parent)
    : QWidget(parent),
      bar_(new gated_tab_bar(this)),
      frame_(new QFrame(this)),
      pages_(new QStackedWidget(this)) {
    frame_->setProperty("role", "box");
    bar_->setObjectName(QStringLiteral("tabs"));
    bar_->raise();
    bar_->set_request([this](int index) { user_asks_for(index); });
}

void tab_view::arrange() {
    bar_->setGeometry(0, 0, width(), bar_height);
    const QRect below(0, bar_height - 1, width(), height() - bar_height + 1);
    frame_->setGeometry(below);
    pages_->setGeometry(below);
}

tab_item* tab_view::add_item() {
    arrange(); // a view that is not shown yet is not told of its size
    auto item = std::make_unique<tab_item>();
    item->index = static_cast<int>(items_.size());
    item->page = new QWidget;
    pages_->addWidget(item->page);
    items_.push_back(std::move(item));
    const bool first = items_.size() == 1;
    const int front = first ? 0 : bar_->currentIndex();
    {
        const QSignalBlocker quiet(bar_);
        bar_->addTab(QString());
    }
    bar_->bring_to_front(front);
    return items_.back().get();
}

void tab_view::set_delegate(delegate asked) {
    asked_ = std::move(asked);
}

void tab_view::serve_user_only_while(std::function<bool()> idle) {
    idle_ = std::move(idle);
}

void tab_view::user_asks_for(int index) {
    if (!idle_ || idle_()) {
        selectTabViewItem(index);
    }
}

void tab_view::set_label(int index, const QString& label) {
    bar_->setTabText(index, label);
}

void tab_view::set_icon(int index, const QString& name) {
    bar_->setTabIcon(index, picture_icon(name));
}

QString tab_view::label(int index) const {
    return bar_->tabText(index);
}

void tab_view::selectTabViewItem(int index) {
    if (asked_ && !asked_(*item(index))) {
        return;
    }
    bar_->bring_to_front(index);
    if (index != selected()) {
        // The focus leaves with the page, before the stack hands it to whatever comes first.
        pages_->currentWidget()->hide();
        pages_->setCurrentIndex(index);
    }
}

int tab_view::selected() const {
    return pages_->currentIndex();
}

void tab_view::resizeEvent(QResizeEvent* /*event*/) {
    arrange();
}

void tab_view::keyPressEvent(QKeyEvent* event) {
    const bool forward = event->key() == Qt::Key_Tab;
    const bool control = event->modifiers().testFlag(Qt::ControlModifier);
    if (!control || (!forward && event->key() != Qt::Key_Backtab)) {
        QWidget::keyPressEvent(event);
        return;
    }
    const int count = bar_->count();
    user_asks_for((selected() + (forward ? 1 : count - 1)) % count);
}
