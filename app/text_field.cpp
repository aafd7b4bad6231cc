#include "app/text_field.h"

#include <QPainter>
#include <QStyle>

#include "app/action_tip.h"

text_field::text_field(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::NoTextInteraction);
}

void text_field::set_value(const QString& value) {
    setText(value);
    show_tip();
    if (follower_ != nullptr) {
        follower_->set_value(value);
    }
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

bool text_field::too_long() const {
    return !wordWrap() && fontMetrics().horizontalAdvance(text()) > contentsRect().width();
}

void text_field::show_tip() {
    set_tip(this, too_long() ? text() : QString());
}
