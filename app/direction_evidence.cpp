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
    const int source = receiver == buttons_[0] ? 0 : 1;
    const auto* button = static_cast<QAbstractButton*>(receiver);
    const bool looked_at = event->type() == QEvent::Enter || event->type() == QEvent::FocusIn;
    if (looked_at && button->isEnabled()) {
        show_direction(source);
    } else if (shown_) {
        show_nothing();
    }
    return false;
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
