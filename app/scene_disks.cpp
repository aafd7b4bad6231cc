#include "app/scene_disks.h"

#include <QFrame>
#include <QLabel>

#include "app/controller.h"
#include "app/localised.h"
#include "app/places.h"
#include "app/placing.h"
#include "app/status_display.h"
#include "app/styling.h"
#include "app/text_field.h"
#include "app/window_extras.h"

namespace {

constexpr QSize card_picture_size(45, 52);

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

void show_empty_bay(const status_extras& extras, std::size_t port) {
    place(extras.empty_pictures[port],
          places::disk_picture.translated(static_cast<int>(port) * places::bay_distance, 0));
    show_picture(extras.empty_pictures[port], QStringLiteral("disk-missing"),
                 places::disk_picture.size());
    extras.empty_pictures[port]->show();
    extras.empty_captions[port]->show();
    extras.empty_words[port]->show();
}

// On the configuration tab: the icon stands before the mode.
void show_configured(controller& window, const disk_view& disk, std::size_t port) {
    constexpr int icon_room = 22;
    const configured_disk& extras = window.extras->configured[port];
    text_field* mode = port == 0 ? window.disk0modefield : window.disk1modefield;
    const bool well = disk.condition == disk_condition::good;
    QRect mode_place =
        places::configured_mode.translated(0, static_cast<int>(port) * places::configured_distance);
    mode_place.setLeft(mode_place.left() + (well ? 0 : icon_room));
    place(mode, mode_place);
    set_tone(mode, well ? "quiet" : tone_of(disk.condition));
    show_picture(extras.icon,
                 disk.condition == disk_condition::broken ? QStringLiteral("status-error")
                                                          : QStringLiteral("status-warn"),
                 QSize(16, 16));
    extras.icon->setVisible(!well);
    set_tone(extras.caption, disk.present ? "" : "faint");
    extras.nothing_in->set_value(disk.present ? QString() : localised("ui_empty_bay"));
}

// On the second page.
void show_card(controller& window, const disk_view& disk, std::size_t port) {
    const disk_card& card = window.extras->disk_cards[port];
    show_picture(card.picture,
                 disk.present ? QLatin1String(picture_of(disk.condition))
                              : QLatin1String("disk-missing"),
                 card_picture_size);
    card.nothing_in->set_value(disk.present ? QString() : localised("ui_empty_bay"));
    set_tone(port == 0 ? window.disk1_info_static_label : window.disk2_info_static_label,
             disk.present ? "" : "quiet");
}

// A dash stands for what is not known.
void clear_configured(const configured_disk& disk) {
    disk.icon->hide();
    set_tone(disk.caption, "faint");
    disk.nothing_in->set_value(QStringLiteral("–"));
}

void clear_disk_card(controller& window, std::size_t port) {
    const disk_card& card = window.extras->disk_cards[port];
    show_faint_picture(card.picture, QStringLiteral("disk-missing"), card_picture_size);
    card.nothing_in->set_value(QString());
    set_tone(port == 0 ? window.disk1_info_static_label : window.disk2_info_static_label, "quiet");
}

void clear_card(const rebuild_card& card) {
    restyle(card.frame, "fate", "");
    card.fate->set_value(QString());
}

} // namespace

void show_disk_scene(controller& window, const disk_view& disk, std::size_t port) {
    text_field* picture = port == 0 ? window.disk0cappicture : window.disk1cappicture;
    show_picture(picture, QLatin1String(picture_of(disk.condition)), places::disk_picture.size());
    set_tone(port == 0 ? window.disk0picmodefield : window.disk1picmodefield,
             tone_of(disk.condition));
    show_configured(window, disk, port);
    show_card(window, disk, port);
    if (!disk.present) {
        show_empty_bay(window.extras->status, port);
    }
}

void clear_disk_scene(controller& window, std::size_t port) {
    clear_disk_card(window, port);
    clear_configured(window.extras->configured[port]);
    clear_card(window.extras->cards[port]);
}
