#include "app/scene_outlook.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>

#include "app/action_tip.h"
#include "app/controller.h"
#include "app/outlook.h"
#include "app/places.h"
#include "app/placing.h"
#include "app/plain_text.h"
#include "app/radio_matrix.h"
#include "app/styling.h"
#include "app/text_field.h"
#include "app/verdict_pill.h"
#include "app/window_extras.h"

namespace {

constexpr int icon_room = 24;

// The name of a state for icons and colours.
const char* state_of(verdict is) {
    switch (is) {
    case verdict::healthy:
        return "ok";
    case verdict::degraded:
    case verdict::copies_differ:
    case verdict::closed:
        return "warn";
    case verdict::broken:
        return "err";
    case verdict::rebuilding:
    case verdict::scanning:
        return "busy";
    case verdict::no_enclosure:
    case verdict::no_disks:
    case verdict::not_configured:
        break;
    }
    return "none";
}

// The link stands to the left of the verdict.
void show_link(const status_extras& extras, bool wanted) {
    constexpr int gap = 16;
    extras.guide_link->setVisible(wanted);
    const QRect pill = extras.verdict->geometry();
    const int width = extras.guide_link->sizeHint().width();
    extras.guide_link->setGeometry(pill.left() - gap - width, pill.top(), width, pill.height());
}

void show_state_line(const status_extras& extras, const outlook& now) {
    const bool well = now.is != verdict::rebuilding;
    QRect state_place = places::volume_state;
    state_place.setLeft(state_place.left() + (well ? 0 : icon_room));
    place(extras.state, state_place);
    extras.state->set_value(one_line(now.state));
    set_tone(extras.state, well ? "quiet" : "busy");
    show_picture(extras.state_icon, QStringLiteral("status-busy"), QSize(16, 16));
    extras.state_icon->setVisible(!now.state.empty() && !well);
}

void show_side(const rebuild_card& card, const copy_side& side) {
    card.role->set_value(one_line(side.role));
    card.record->set_value(one_line(side.record));
}

} // namespace

void show_reasons(controller& window, const button_reasons& reasons) {
    set_reason(window.confirmbutton, one_line(reasons.create));
    set_tip(window.raidconfigradiobutton,
            window.raidconfigradiobutton->isEnabled() ? QString() : one_line(reasons.create));
    set_reason(window.clearconfigbutton, one_line(reasons.clear_array));
    set_reason(window.rebuild0to1button, one_line(reasons.rebuild[0]));
    set_reason(window.rebuild1to0button, one_line(reasons.rebuild[1]));
}

void show_outlook(controller& window, const outlook& now) {
    const status_extras& extras = window.extras->status;
    extras.verdict->show_verdict(state_of(now.is), one_line(now.word));
    extras.verdict->show();
    show_link(extras, now.failure);
    extras.advice->set_value(one_line(now.advice));
    show_state_line(extras, now);
    show_reasons(window, now.reasons);
    window.raidconfigradiobutton->set_in_use(now.kind_in_use);
    restyle(window.confirmbutton, "kind", now.create_is_next ? "primary" : "secondary");
    for (std::size_t port = 0; port < now.sides.size(); ++port) {
        show_side(window.extras->cards[port], now.sides[port]);
    }
}

void clear_outlook(controller& window) {
    show_outlook(window, outlook());
    window.extras->status.verdict->hide();
}
