#include "app/scene.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <array>

#include "app/controller.h"
#include "app/level_indicator.h"
#include "app/numbered_step.h"
#include "app/outlook.h"
#include "app/pace_text.h"
#include "app/placing.h"
#include "app/plain_text.h"
#include "app/radio_matrix.h"
#include "app/scene_outlook.h"
#include "app/styling.h"
#include "app/tab_view.h"
#include "app/text_field.h"
#include "app/window_extras.h"
#include "model/krtool.h"

namespace {

constexpr QRect volume_picture_place(148, 120, 216, 120);
constexpr QRect volume_capacity_place(388, 204, 368, 32);
constexpr QRect disk0_picture_place(140, 120, 104, 120);
constexpr QRect disk0_capacity_place(260, 204, 176, 32);
constexpr std::array<QRect, 2> dim_bay_places = {QRect(140, 120, 104, 120),
                                                 QRect(252, 120, 104, 120)};
constexpr QSize disk_size(104, 120);

QString localised(const char* key) {
    return one_line(j.with.texts.text(key));
}

const char* picture_of(disk_condition condition) {
    switch (condition) {
    case disk_condition::degraded:
        return "disk-warning";
    case disk_condition::broken:
        return "disk-error";
    case disk_condition::good:
        break;
    }
    return "disk";
}

const char* tone_of(disk_condition condition) {
    switch (condition) {
    case disk_condition::degraded:
        return "warn";
    case disk_condition::broken:
        return "err";
    case disk_condition::good:
        break;
    }
    return "";
}

void show_note(const status_extras& extras, const char* heading, const char* text,
               int heading_top) {
    constexpr int text_distance = 34;
    place(extras.note_heading, QRect(404, heading_top, 352, 28));
    place(extras.note_text, QRect(404, heading_top + text_distance, 352, 54));
    extras.note_heading->set_value(localised(heading));
    extras.note_heading->show();
    extras.note_text->set_value(text == nullptr ? QString() : localised(text));
    extras.note_text->show();
}

// Something goes on with disks of which nothing is known at the moment.
void show_work(controller& window, const char* heading, const char* text) {
    constexpr int heading_top = 144;
    clear_scene(window);
    const status_extras& extras = window.extras->status;
    show_note(extras, heading, text, heading_top);
    for (std::size_t port = 0; port < extras.empty_pictures.size(); ++port) {
        place(extras.empty_pictures[port], dim_bay_places[port]);
        show_faint_picture(extras.empty_pictures[port], QStringLiteral("disk-missing"), disk_size);
        extras.empty_pictures[port]->show();
    }
}

void show_empty_bay(const status_extras& extras, std::size_t port) {
    constexpr int bay_distance = 320;
    place(extras.empty_pictures[port],
          disk0_picture_place.translated(static_cast<int>(port) * bay_distance, 0));
    show_picture(extras.empty_pictures[port], QStringLiteral("disk-missing"), disk_size);
    extras.empty_pictures[port]->show();
    extras.empty_captions[port]->show();
    extras.empty_words[port]->show();
}

// On the configuration tab: the icon stands before the mode.
void show_configured(controller& window, const disk_view& disk, std::size_t port) {
    constexpr int row_distance = 60;
    constexpr QRect full(548, 403, 208, 18);
    constexpr QRect beside_icon(570, 403, 186, 18);
    const configured_disk& extras = window.extras->configured[port];
    text_field* mode = port == 0 ? window.disk0modefield : window.disk1modefield;
    const bool well = disk.condition == disk_condition::good;
    place(mode, (well ? full : beside_icon).translated(0, static_cast<int>(port) * row_distance));
    set_tone(mode, well ? "quiet" : tone_of(disk.condition));
    show_picture(extras.icon,
                 disk.condition == disk_condition::broken ? QStringLiteral("status-error")
                                                          : QStringLiteral("status-warn"),
                 QSize(16, 16));
    extras.icon->setVisible(!well);
    set_tone(extras.caption, disk.present ? "" : "faint");
    extras.nothing_in->set_value(disk.present ? QString() : localised("ui_empty_bay"));
}

void show_bay(controller& window, const disk_view& disk, std::size_t port) {
    text_field* picture = port == 0 ? window.disk0cappicture : window.disk1cappicture;
    show_picture(picture, QLatin1String(picture_of(disk.condition)), disk_size);
    set_tone(port == 0 ? window.disk0picmodefield : window.disk1picmodefield,
             tone_of(disk.condition));
    show_configured(window, disk, port);
    if (!disk.present) {
        show_empty_bay(window.extras->status, port);
    }
}

void hide_status_extras(const status_extras& extras) {
    extras.enclosure_picture->hide();
    extras.note_heading->hide();
    extras.note_text->hide();
    extras.bay_divider->hide();
    for (numbered_step* step : extras.steps) {
        step->hide();
    }
    for (std::size_t port = 0; port < extras.empty_pictures.size(); ++port) {
        extras.empty_pictures[port]->hide();
        extras.empty_captions[port]->hide();
        extras.empty_words[port]->hide();
    }
}

// A dash stands for what is not known.
void clear_configured(const configured_disk& disk) {
    disk.icon->hide();
    set_tone(disk.caption, "faint");
    disk.nothing_in->set_value(QStringLiteral("–"));
}

void clear_card(const rebuild_card& card) {
    restyle(card.frame, "fate", "");
    card.fate->set_value(QString());
}

} // namespace

void clear_scene(controller& window) {
    window_extras& extras = *window.extras;
    hide_status_extras(extras.status);
    clear_outlook(window);
    for (std::size_t port = 0; port < extras.cards.size(); ++port) {
        clear_configured(extras.configured[port]);
        clear_card(extras.cards[port]);
    }
    extras.speed->set_value(QString());
    extras.time_left->set_value(QString());
    window.levelindicator->set_stalled(false);
    extras.hint_icon->show();
    extras.rebuild_hint->show();
    window.raidconfigradiobutton->setEnabled(false);
    window.tabview->set_icon(window.rebuildtab->index, QString());
    restyle(window.rebuild0to1button, "running", false);
    restyle(window.rebuild1to0button, "running", false);
}

void show_scanning_scene(controller& window) {
    show_work(window, "ui_scanning", "ui_scanning_advice");
    show_outlook(window, outlook_while_scanning(j.with.texts));
}

void show_changing_scene(controller& window) {
    show_work(window, "ui_changing", "ui_changing_advice");
}

void show_empty_scene(controller& window) {
    constexpr int heading_top = 118;
    const status_extras& extras = window.extras->status;
    show_note(extras, "ui_no_enclosure", nullptr, heading_top);
    show_picture(extras.enclosure_picture, QStringLiteral("enclosure"), QSize(216, 120));
    extras.enclosure_picture->show();
    for (numbered_step* step : extras.steps) {
        step->show();
    }
    show_outlook(window, outlook_without_enclosure(j.with.texts));
}

void show_chip_scene(controller& window, const view_state& view, const outlook& now) {
    for (std::size_t port = 0; port < view.disks.size(); ++port) {
        show_bay(window, view.disks[port], port);
    }
    const bool volume = view.raid_valid;
    window.extras->status.bay_divider->setVisible(!volume);
    place(window.disk0cappicture, volume ? volume_picture_place : disk0_picture_place);
    place(window.disk0caplabel, volume ? volume_capacity_place : disk0_capacity_place);
    if (volume) {
        show_picture(window.disk0cappicture, QStringLiteral("volume"), volume_picture_place.size());
    }
    if (view.rebuild_tab_for_choice) {
        window.tabview->set_icon(window.rebuildtab->index, QStringLiteral(":/status-warn.png"));
    }
    window.raidconfigradiobutton->setEnabled(true);
    show_outlook(window, now);
}

void mark_running(controller& window, int source) {
    restyle(source == 0 ? window.rebuild0to1button : window.rebuild1to0button, "running", true);
    restyle(window.extras->cards[source == 0 ? 0 : 1].frame, "fate", "stays");
    window.tabview->set_icon(window.rebuildtab->index, QStringLiteral(":/yellow.JPG"));
}

void show_progress_scene(controller& window) {
    window.extras->hint_icon->hide();
    window.extras->rebuild_hint->hide();
}

void show_pace(controller& window, const pace_view& pace) {
    const window_extras& extras = *window.extras;
    window.levelindicator->set_stalled(pace.stalled);
    set_tone(extras.speed, pace.stalled ? "warn" : "quiet");
    extras.speed->set_value(one_line(speed_text(pace, j.with.texts)));
    extras.time_left->set_value(one_line(time_left_text(pace, j.with.texts)));
}
