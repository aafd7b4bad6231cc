#include "app/direction_evidence.h"

#include <QAbstractButton>
#include <QEvent>
#include <QFrame>

#include "app/styling.h"
#include "app/text_field.h"

namespace {

// Whether the event may change what is being looked at.
bool concerns_attention(QEvent::Type type) {
    switch (type) {
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::EnabledChange:
    case QEvent::Hide:
    case QEvent::Show:
        return true;
    default:
        return false;
    }
}

} // namespace

direction_evidence::direction_evidence(std::array<QAbstractButton*, 2> buttons,
                                       std::array<rebuild_card, 2> cards, QObject* parent)
    : QObject(parent), buttons_(buttons), cards_(cards) {
    for (QAbstractButton* button : buttons_) {
        button->installEventFilter(this);
    }
    set_tone(cards_[0].fate, "busy");
    set_tone(cards_[1].fate, "busy");
}

void direction_evidence::set_words(const QString& stays, const QString& overwritten) {
    stays_ = stays;
    overwritten_ = overwritten;
}

bool direction_evidence::eventFilter(QObject* receiver, QEvent* event) {
    if (!concerns_attention(event->type())) {
        return false;
    }
    const std::size_t port = receiver == buttons_[0] ? 0 : 1;
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::Leave:
        under_mouse_[port] = event->type() == QEvent::Enter;
        break;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        focused_[port] = event->type() == QEvent::FocusIn;
        break;
    default:
        break;
    }
    show_attention();
    return false;
}

// The mouse tells more about what somebody is up to than a focus that stayed behind.
void direction_evidence::show_attention() {
    for (const std::array<bool, 2>& attention : {under_mouse_, focused_}) {
        for (std::size_t port = 0; port < buttons_.size(); ++port) {
            if (attention[port] && buttons_[port]->isEnabled() && buttons_[port]->isVisible()) {
                show_direction(static_cast<int>(port));
                return;
            }
        }
    }
    if (shown_) {
        show_nothing();
    }
}

void direction_evidence::show_direction(int source) {
    for (int port = 0; port < 2; ++port) {
        const rebuild_card& card = cards_[static_cast<std::size_t>(port)];
        const bool stays = port == source;
        restyle(card.frame, "fate", stays ? "stays" : "lost");
        set_tone(card.fate, stays ? "busy" : "err");
        card.fate->set_value(stays ? stays_ : overwritten_);
    }
    shown_ = true;
}

void direction_evidence::show_nothing() {
    for (const rebuild_card& card : cards_) {
        restyle(card.frame, "fate", "");
        card.fate->set_value(QString());
    }
    shown_ = false;
}
