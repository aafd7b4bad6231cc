#include "app/scene.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>

#include "app/announcement.h"
#include "app/button_reasons.h"
#include "app/closed_bridges.h"
#include "app/controller.h"
#include "app/controller_box.h"
#include "app/display_text.h"
#include "app/krview.h"
#include "app/level_indicator.h"
#include "app/localised.h"
#include "app/numbered_step.h"
#include "app/outlook.h"
#include "app/pace_text.h"
#include "app/places.h"
#include "app/placing.h"
#include "app/plain_text.h"
#include "app/radio_matrix.h"
#include "app/scene_disks.h"
#include "app/scene_outlook.h"
#include "app/styling.h"
#include "app/tab_view.h"
#include "app/text_field.h"
#include "app/window_extras.h"
#include "device/registry.h"
#include "model/krtool.h"

namespace {

constexpr QRect volume_picture_place(148, 120, 216, 120);
constexpr QRect volume_capacity_place(388, 204, 368, 32);
constexpr int dim_bay_distance = 112;
constexpr int empty_heading_top = 118;

void show_note(const status_extras& extras, const char* heading, const QString& text,
               int heading_top) {
    constexpr int text_distance = 34;
    place(extras.note_heading, QRect(404, heading_top, 352, 28));
    place(extras.note_text, QRect(404, heading_top + text_distance, 352, 54));
    extras.note_heading->set_value(localised(heading));
    extras.note_heading->show();
    extras.note_text->set_value(text);
    extras.note_text->show();
}

// Something goes on with disks of which nothing is known at the moment.
void show_work(controller& window, const char* heading, const QString& text) {
    constexpr int heading_top = 144;
    clear_scene(window);
    const status_extras& extras = window.extras->status;
    show_note(extras, heading, text, heading_top);
    for (std::size_t port = 0; port < extras.empty_pictures.size(); ++port) {
        place(extras.empty_pictures[port],
              places::disk_picture.translated(static_cast<int>(port) * dim_bay_distance, 0));
        show_faint_picture(extras.empty_pictures[port], QStringLiteral("disk-missing"),
                           places::disk_picture.size());
        extras.empty_pictures[port]->show();
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

// An enclosure is connected, and not in the list.
void show_closed(controller& window, const closed_note& note) {
    constexpr int text_height = 92;
    const status_extras& extras = window.extras->status;
    const QString heading = localised(note.heading);
    const QString text = one_line(note.text);
    window.controllerselectbox->set_placeholder(heading);
    show_note(extras, note.heading, text, empty_heading_top);
    extras.note_text->resize(extras.note_text->width(), text_height);
    show_outlook(window, outlook_on_closed_enclosure(j.with.texts));
    announce(window.mainview, heading + QStringLiteral(". ") + text);
}

} // namespace

void clear_scene(controller& window) {
    window_extras& extras = *window.extras;
    hide_status_extras(extras.status);
    clear_outlook(window);
    for (std::size_t port = 0; port < extras.cards.size(); ++port) {
        clear_disk_scene(window, port);
    }
    extras.hint_icon->show();
    extras.rebuild_hint->show();
    window.raidconfigradiobutton->setEnabled(false);
    window.tabview->set_icon(window.rebuildtab->index, QString());
    restyle(window.rebuild0to1button, "running", false);
    restyle(window.rebuild1to0button, "running", false);
}

void show_scanning_scene(controller& window) {
    show_work(window, "ui_scanning", localised("ui_scanning_advice"));
    window.controllerselectbox->set_placeholder(localised("ui_scanning"));
    show_outlook(window, outlook_while_scanning(j.with.texts));
}

void show_changing_scene(controller& window) {
    show_work(window, "ui_changing", localised("ui_changing_advice"));
    show_reasons(window, reasons_while_restarting(j.with.texts));
    announce(window.mainview, localised("ui_changing"));
}

void show_restarting_scene(controller& window) {
    const std::string advice =
        filled(j.with.texts.text("ui_restarting_advice"), {j.with.texts.text("refresh_button")});
    show_work(window, "ui_restarting", one_line(advice));
    show_reasons(window, reasons_while_restarting(j.with.texts));
}

void show_empty_scene(controller& window) {
    const status_extras& extras = window.extras->status;
    show_picture(extras.enclosure_picture, QStringLiteral("enclosure"), QSize(216, 120));
    extras.enclosure_picture->show();
    if (const auto note = note_on(j.with.registry.reached(), j.with.texts)) {
        show_closed(window, *note);
        return;
    }
    window.controllerselectbox->set_placeholder(localised("ui_no_enclosure"));
    show_note(extras, "ui_no_enclosure", QString(), empty_heading_top);
    for (numbered_step* step : extras.steps) {
        step->show();
    }
    show_outlook(window, outlook_without_enclosure(j.with.texts));
    announce(window.mainview, localised("ui_no_enclosure"));
}

void show_chip_scene(controller& window, const view_state& view, const outlook& now) {
    for (std::size_t port = 0; port < view.disks.size(); ++port) {
        show_disk_scene(window, view.disks[port], port);
    }
    const bool volume = view.raid_valid;
    window.extras->status.bay_divider->setVisible(!volume);
    place(window.disk0cappicture, volume ? volume_picture_place : places::disk_picture);
    place(window.disk0caplabel, volume ? volume_capacity_place : places::disk_capacity);
    if (volume) {
        show_picture(window.disk0cappicture, QStringLiteral("volume"), volume_picture_place.size());
    }
    if (view.rebuild_tab_for_choice) {
        window.tabview->set_icon(window.rebuildtab->index, QStringLiteral("status-warn.png"));
    }
    window.raidconfigradiobutton->setEnabled(true);
    show_outlook(window, now);
}

void mark_running(controller& window, int source) {
    restyle(source == 0 ? window.rebuild0to1button : window.rebuild1to0button, "running", true);
    restyle(window.extras->cards[source == 0 ? 0 : 1].frame, "fate", "stays");
    window.tabview->set_icon(window.rebuildtab->index, QStringLiteral("yellow.JPG"));
}

void show_progress_scene(controller& window) {
    window.extras->hint_icon->hide();
    window.extras->rebuild_hint->hide();
}

void show_pace(controller& window, const pace_view& pace) {
    const window_extras& extras = *window.extras;
    if (pace.stalled) {
        announce(window.mainview, localised("ui_stalled"));
    }
    window.levelindicator->set_stalled(pace.stalled);
    set_tone(extras.speed, pace.stalled ? "warn" : "quiet");
    extras.speed->set_value(one_line(speed_text(pace, j.with.texts)));
    extras.time_left->set_value(one_line(time_left_text(pace, j.with.texts)));
}
