// The first page's tabs: configuration and rebuild.
#include <QFrame>
#include <QLabel>
#include <QPushButton>

#include "app/controller.h"
#include "app/direction_evidence.h"
#include "app/level_indicator.h"
#include "app/places.h"
#include "app/placing.h"
#include "app/radio_matrix.h"
#include "app/styling.h"
#include "app/text_field.h"
#include "app/titled_box.h"
#include "app/window_contents.h"
#include "app/window_extras.h"

namespace {

QPushButton* button(QWidget* parent, const char* name, const QRect& where, const char* kind) {
    auto* made = make<QPushButton>(parent, name, where);
    made->setProperty("kind", kind);
    return made;
}

text_field* line(QWidget* parent, const char* name, const QRect& where, const char* role) {
    return with_role(make<text_field>(parent, name, where), role);
}

void build_disks_of_configuration(controller& window, QWidget* page) {
    const auto row = [](int port, const QRect& first) {
        return first.translated(0, port * places::configured_distance);
    };
    constexpr QRect caption(548, 370, 104, 32);
    constexpr QRect mode = places::configured_mode;
    constexpr QRect clear(660, 370, 96, 32);
    for (int port = 0; port < 2; ++port) {
        configured_disk& disk = window.extras->configured[static_cast<std::size_t>(port)];
        disk.caption = with_role(make<text_field>(page, row(port, caption)), "strong");
        disk.icon = make<QLabel>(page, row(port, QRect(548, 404, 16, 16)));
        disk.nothing_in = with_role(make<text_field>(page, row(port, mode)), "state", "faint");
    }
    window.disk0modefield = line(page, "disk0modefield", row(0, mode), "state");
    window.disk1modefield = line(page, "disk1modefield", row(1, mode), "state");
    window.cleardisk0button = button(page, "cleardisk0button", row(0, clear), "danger");
    window.cleardisk1button = button(page, "cleardisk1button", row(1, clear), "danger");
}

// Every tag keeps to its edge of the card.
text_field* tag(QWidget* page, const char* name, const QRect& where, Qt::Alignment edge) {
    auto* made = line(page, name, where, "tag");
    made->fit_text(edge);
    return made;
}

void build_card(rebuild_card& card, QWidget* page, int port) {
    constexpr int distance = 420;
    const auto at = [port](const QRect& first) { return first.translated(port * distance, 0); };
    card.frame = with_role(make<QFrame>(page, at(QRect(148, 372, 188, 124))), "card");
    card.role = tag(page, port == 0 ? "disk0role" : "disk1role", at(QRect(162, 434, 164, 20)),
                    Qt::AlignLeft);
    card.record = with_role(make<text_field>(page, port == 0 ? "disk0record" : "disk1record",
                                             at(QRect(162, 465, 170, 16))),
                            "small");
    card.fate = tag(page, port == 0 ? "disk0fate" : "disk1fate", at(QRect(216, 383, 110, 20)),
                    Qt::AlignRight);
}

void build_direction_buttons(controller& window, QWidget* page) {
    window.rebuild0to1button =
        button(page, "rebuild0to1button", QRect(352, 386, 200, 40), "direction");
    window.rebuild1to0button =
        button(page, "rebuild1to0button", QRect(352, 442, 200, 40), "direction");
    for (QPushButton* direction : {window.rebuild0to1button, window.rebuild1to0button}) {
        direction->setIconSize(QSize(20, 20));
    }
}

void build_progress(controller& window, QWidget* page) {
    window.rebuildlabel = line(page, "rebuildlabel", QRect(148, 516, 420, 22), "strong");
    window.percentagefield = line(page, "percentagefield", QRect(596, 508, 160, 32), "number");
    window.percentagefield->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    window.levelindicator = make<level_indicator>(page, "levelindicator", QRect(148, 546, 608, 10));
    window.extras->speed = with_role(
        make<text_field>(page, "rebuild_speed", QRect(148, 566, 300, 18)), "state", "quiet");
    window.extras->time_left = with_role(
        make<text_field>(page, "rebuild_time_left", QRect(456, 566, 300, 18)), "state", "quiet");
    window.extras->time_left->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    window.extras->hint_icon = make<QLabel>(page, QRect(148, 521, 20, 20));
    show_picture(window.extras->hint_icon, QStringLiteral("status-info"), QSize(20, 20));
    auto* hint = with_role(make<text_field>(page, QRect(180, 522, 576, 54)), "state", "quiet");
    hint->setWordWrap(true);
    hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    window.extras->rebuild_hint = hint;
}

} // namespace

void build_configuration_tab(controller& window, QWidget* page) {
    auto* box = make<titled_box>(page, "raid_config_radio_box", QRect(136, 364, 392, 234));
    box->place_title(QRect(12, 4, 364, 20));
    window.raid_config_radio_box = box;
    window.raidconfigradiobutton =
        make<radio_matrix>(box, "raidconfigradiobutton", QRect(140, 394, 384, 196));
    with_role(make<QFrame>(page, QRect(532, 372, 1, 218)), "hairline");
    build_disks_of_configuration(window, page);
    window.confirmbutton = button(page, "confirmbutton", QRect(548, 504, 208, 38), "secondary");
    window.clearconfigbutton =
        button(page, "clearconfigbutton", QRect(548, 552, 208, 38), "danger");
    window.twotbcheckbox = button(page, "twotbcheckbox", QRect(548, 480, 208, 20), "");
    window.twotbcheckbox->hide();
}

void build_rebuild_tab(controller& window, QWidget* page) {
    build_card(window.extras->cards[0], page, 0);
    build_card(window.extras->cards[1], page, 1);
    window.disk1_rebuild_static_label =
        line(page, "disk1_rebuild_static_label", QRect(162, 382, 164, 22), "caption");
    window.disk2_rebuild_static_label =
        line(page, "disk2_rebuild_static_label", QRect(582, 382, 164, 22), "caption");
    window.rebuilddisk0field = line(page, "rebuilddisk0field", QRect(162, 405, 164, 18), "state");
    window.rebuilddisk1field = line(page, "rebuilddisk1field", QRect(582, 405, 164, 18), "state");
    window.disk0oldnewlabel =
        tag(page, "disk0oldnewlabel", QRect(162, 434, 164, 20), Qt::AlignLeft);
    window.disk1oldnewlabel =
        tag(page, "disk1oldnewlabel", QRect(582, 434, 164, 20), Qt::AlignLeft);
    build_direction_buttons(window, page);
    window.extras->evidence = new direction_evidence(
        {window.rebuild0to1button, window.rebuild1to0button}, window.extras->cards, page);
    build_progress(window, page);
}
