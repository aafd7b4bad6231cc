#include "app/scene.h"

#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTreeView>
#include <array>

#include "app/action_tip.h"
#include "app/controller.h"
#include "app/controller_box.h"
#include "app/display_text.h"
#include "app/gated_tab_bar.h"
#include "app/level_indicator.h"
#include "app/placing.h"
#include "app/plain_text.h"
#include "app/radio_matrix.h"
#include "app/tab_view.h"
#include "app/text_field.h"
#include "app/titled_box.h"
#include "app/window_extras.h"
#include "app/working_indicator.h"
#include "model/krtool.h"

namespace {

constexpr QRect disk0_picture_place(140, 120, 104, 120);
constexpr QRect disk0_capacity_place(260, 204, 176, 32);
constexpr QRect volume_picture_place(148, 120, 216, 120);
constexpr QRect volume_capacity_place(388, 204, 368, 32);
constexpr QRect empty_picture_place(140, 122, 216, 120);

QString localised(const char* key) {
    return one_line(j.with.texts.text(key));
}

void restyle(QWidget* widget, const char* property, const QVariant& value) {
    widget->setProperty(property, value);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

void set_tone(QWidget* widget, const char* tone) {
    restyle(widget, "tone", QLatin1String(tone));
}

void set_picture(QLabel* label, const char* name, const QRect& place) {
    label->setPixmap(QIcon(QStringLiteral(":/%1.png").arg(QLatin1String(name)))
                         .pixmap(place.size(), label->devicePixelRatio()));
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

void show_note(controller& window, const char* heading, const char* advice) {
    const window_extras& extras = *window.extras;
    set_picture(extras.note_picture, "enclosure", empty_picture_place);
    extras.note_heading->set_value(localised(heading));
    extras.note_advice->set_value(localised(advice));
    extras.note_picture->show();
    extras.note_heading->show();
    extras.note_advice->show();
}

void show_bay(controller& window, const disk_view& disk, std::size_t port) {
    const window_extras& extras = *window.extras;
    text_field* picture = port == 0 ? window.disk0cappicture : window.disk1cappicture;
    set_picture(picture, picture_of(disk.condition), disk0_picture_place);
    const char* tone = tone_of(disk.condition);
    set_tone(port == 0 ? window.disk0picmodefield : window.disk1picmodefield, tone);
    set_tone(port == 0 ? window.disk0modefield : window.disk1modefield, tone);
    QPushButton* direction = port == 0 ? window.rebuild0to1button : window.rebuild1to0button;
    set_reason(direction, one_line(disk.rebuild_reason));
    extras.empty_pictures[port]->setVisible(!disk.present);
    extras.empty_captions[port]->setVisible(!disk.present);
    extras.empty_words[port]->setVisible(!disk.present);
}

} // namespace

void caption_extras(controller& window) {
    const window_extras& extras = *window.extras;
    constexpr std::array<const char*, 4> kinds = {"raid_0", "raid_1", "span", "not_config"};
    constexpr std::array<const char*, 4> meanings = {"ui_raid_0_meaning", "ui_raid_1_meaning",
                                                     "ui_span_meaning", "ui_not_config_meaning"};
    for (int row = 0; row < radio_matrix::rows; ++row) {
        const auto place = static_cast<std::size_t>(row);
        window.raidconfigradiobutton->set_row_text(row, localised(kinds[place]),
                                                   localised(meanings[place]));
    }
    window.raidconfigradiobutton->setAccessibleName(localised("raid_configuration"));
    extras.page_captions[0]->set_value(localised("raid_status"));
    extras.page_captions[1]->set_value(localised("ui_system_information"));
    window.mainguibutton->setAccessibleName(localised("raid_status"));
    window.showdiskguibutton->setAccessibleName(localised("ui_system_information"));
    for (QPushButton* button : {window.cleardisk0button, window.cleardisk1button}) {
        button->setText(button_text(j.with.texts.text("ui_clear")));
    }
    window.cleardisk0button->setAccessibleName(localised("ui_clear_disk_1"));
    window.cleardisk1button->setAccessibleName(localised("ui_clear_disk_2"));
    window.minimizebutton->setAccessibleName(localised("ui_minimise"));
    window.closebutton->setAccessibleName(localised("ui_close"));
    window.controllerselectbox->set_name(localised("ui_controllers"));
    window.workingindicator->setAccessibleName(localised("ui_working"));
    show_restart_target(window, "");
    extras.devices_box->set_title(localised("ui_devices"));
    window.tree->setAccessibleName(localised("ui_devices"));
    extras.rebuild_hint->set_value(localised("ui_rebuild_hint"));
    window.levelindicator->setAccessibleName(localised("rebuild_progress"));
    window.tabview->bar()->setAccessibleName(localised("raid_status"));
    constexpr std::array<const char*, 2> disks = {"disk_1", "disk_2"};
    for (std::size_t port = 0; port < disks.size(); ++port) {
        extras.empty_captions[port]->set_value(localised(disks[port]));
        extras.config_captions[port]->set_value(localised(disks[port]));
        extras.empty_words[port]->set_value(localised("ui_empty_bay"));
    }
    mark_page_caption(window, 0);
}

void mark_page_caption(controller& window, int page) {
    for (int other = 0; other < 2; ++other) {
        set_tone(window.extras->page_captions[static_cast<std::size_t>(other)],
                 other == page ? "front" : "quiet");
    }
}

void clear_scene(controller& window) {
    const window_extras& extras = *window.extras;
    const std::array<QWidget*, 10> all = {extras.note_picture,      extras.note_heading,
                                          extras.note_advice,       extras.empty_pictures[0],
                                          extras.empty_pictures[1], extras.empty_captions[0],
                                          extras.empty_captions[1], extras.empty_words[0],
                                          extras.empty_words[1],    extras.bay_divider};
    for (QWidget* widget : all) {
        widget->hide();
    }
    extras.hint_icon->show();
    extras.rebuild_hint->show();
    set_reason(window.rebuild0to1button, {});
    set_reason(window.rebuild1to0button, {});
    restyle(window.rebuild0to1button, "running", false);
    restyle(window.rebuild1to0button, "running", false);
}

void show_scanning_scene(controller& window) {
    show_note(window, "ui_scanning", "ui_scanning_advice");
}

void show_empty_scene(controller& window) {
    show_note(window, "ui_no_enclosure", "ui_no_enclosure_advice");
}

void show_chip_scene(controller& window, const view_state& view) {
    for (std::size_t port = 0; port < view.disks.size(); ++port) {
        show_bay(window, view.disks[port], port);
    }
    const bool volume = view.raid_valid;
    window.extras->bay_divider->setVisible(!volume);
    place(window.disk0cappicture, volume ? volume_picture_place : disk0_picture_place);
    place(window.disk0caplabel, volume ? volume_capacity_place : disk0_capacity_place);
    if (volume) {
        set_picture(window.disk0cappicture, "volume", volume_picture_place);
    }
}

void mark_running(QPushButton* button) {
    restyle(button, "running", true);
}

void show_progress_scene(controller& window) {
    window.extras->hint_icon->hide();
    window.extras->rebuild_hint->hide();
}

void show_restart_target(controller& window, const std::string& name) {
    QPushButton* button = window.extras->warmbootbutton;
    const std::string text = name.empty() ? j.with.texts.text("ui_restart_enclosure")
                                          : filled(j.with.texts.text("ui_restart_named"), name);
    constexpr int padding = 24;
    const QString shown = button->fontMetrics().elidedText(one_line(text), Qt::ElideMiddle,
                                                           button->width() - padding);
    button->setText(button_text(shown.toStdString()));
    button->setAccessibleName(one_line(text));
    button->setEnabled(!name.empty());
    set_reason(button, localised("ui_reason_no_enclosure"));
}
