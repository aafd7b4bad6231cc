#include "app/text_field.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QStyle>

#include "app/action_tip.h"

namespace {

constexpr QEvent::Type measure = QEvent::User; // to ourselves alone

} // namespace

text_field::text_field(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::NoTextInteraction);
}

void text_field::set_value(const QString& value) {
    setText(value);
    fit();
    show_tip();
    if (follower_ != nullptr) {
        follower_->set_value(value);
    }
}

void text_field::fit_text(Qt::Alignment edge) {
    fitted_place_ = geometry();
    fitted_edge_ = edge;
    fit();
}

void text_field::fit() {
    if (fitted_place_.isNull()) {
        return;
    }
    const int wanted = text().isEmpty() ? 0 : qMin(sizeHint().width(), fitted_place_.width());
    QRect area = fitted_place_;
    if (fitted_edge_.testFlag(Qt::AlignRight)) {
        area.setLeft(area.right() + 1 - wanted);
    } else {
        area.setWidth(wanted);
    }
    setGeometry(area);
}

void text_field::paintEvent(QPaintEvent* event) {
    if (!too_long()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    const QRect area = contentsRect();
    const QString cut = fontMetrics().elidedText(text(), Qt::ElideMiddle, area.width());
    style()->drawItemText(&painter, area, static_cast<int>(alignment()), palette(), isEnabled(),
                          cut, foregroundRole());
}

void text_field::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    show_tip();
}

// While the desktop still places the window, so that measuring does not keep it waiting.
void text_field::showEvent(QShowEvent* event) {
    QLabel::showEvent(event);
    QCoreApplication::postEvent(this, new QEvent(measure));
}

bool text_field::event(QEvent* event) {
    if (event->type() != measure) {
        return QLabel::event(event);
    }
    show_tip();
    return true;
}

bool text_field::too_long() const {
    return !wordWrap() && width_of_text() > contentsRect().width();
}

// Shaping a text takes longer than painting it: it is measured once.
int text_field::width_of_text() const {
    if (measured_ != text() || measured_in_ != font()) {
        measured_ = text();
        measured_in_ = font();
        measured_width_ = fontMetrics().horizontalAdvance(measured_);
    }
    return measured_width_;
}

// What nobody sees is not measured.
void text_field::show_tip() {
    if (!isVisible()) {
        return;
    }
    set_tip(this, too_long() ? text() : QString());
}
