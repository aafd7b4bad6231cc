// Captions of what is no outlet.
#include <QKeySequence>
#include <QPushButton>
#include <QTreeView>
#include <array>

#include "app/action_tip.h"
#include "app/controller.h"
#include "app/controller_box.h"
#include "app/direction_evidence.h"
#include "app/display_text.h"
#include "app/gated_tab_bar.h"
#include "app/level_indicator.h"
#include "app/localised.h"
#include "app/numbered_step.h"
#include "app/plain_text.h"
#include "app/radio_matrix.h"
#include "app/scene.h"
#include "app/styling.h"
#include "app/tab_view.h"
#include "app/text_field.h"
#include "app/titled_box.h"
#include "app/window_extras.h"
#include "app/working_indicator.h"
#include "model/krtool.h"

namespace {

constexpr std::array<const char*, 2> disk_keys = {"disk_1", "disk_2"};

void caption_frame(controller& window) {
    window.extras->page_captions[0]->set_value(localised("raid_status"));
    window.extras->page_captions[1]->set_value(localised("ui_system_information"));
    window.mainguibutton->setAccessibleName(localised("raid_status"));
    window.showdiskguibutton->setAccessibleName(localised("ui_system_information"));
    window.minimizebutton->setAccessibleName(localised("ui_minimise"));
    window.closebutton->setAccessibleName(localised("ui_close"));
    window.controllerselectbox->set_name(localised("ui_controllers"));
    window.controllerselectbox->set_placeholder(localised("ui_no_enclosure"));
    window.workingindicator->setAccessibleName(localised("ui_working"));
    mark_page_caption(window, 0);
}

void caption_status(controller& window) {
    const status_extras& extras = window.extras->status;
    for (std::size_t port = 0; port < disk_keys.size(); ++port) {
        extras.empty_captions[port]->set_value(localised(disk_keys[port]));
        extras.empty_words[port]->set_value(localised("ui_empty_bay"));
    }
    extras.guide_link->setText(button_text(j.with.texts.text("ui_guide_link")));
    extras.guide_link->setAccessibleName(localised("ui_guide_link"));
    const QKeySequence guide_key(Qt::Key_F1);
    set_tip(extras.guide_link, name_and_key(localised("ui_guide_link"), guide_key),
            guide_key.toString(QKeySequence::NativeText));
    const std::string wait =
        filled(j.with.texts.text("ui_step_wait"), {j.with.texts.text("refresh_button")});
    extras.steps[0]->set_step(1, localised("ui_step_connect"));
    extras.steps[1]->set_step(2, localised("ui_step_switch_on"));
    extras.steps[2]->set_step(3, one_line(wait));
}

void caption_configuration(controller& window) {
    constexpr std::array<const char*, radio_matrix::rows> kinds = {"raid_0", "raid_1", "span",
                                                                   "not_config"};
    constexpr std::array<const char*, radio_matrix::rows> meanings = {
        "ui_raid_0_meaning", "ui_raid_1_meaning", "ui_span_meaning", "ui_not_config_meaning"};
    for (int row = 0; row < radio_matrix::rows; ++row) {
        const auto place = static_cast<std::size_t>(row);
        window.raidconfigradiobutton->set_row_text(row, localised(kinds[place]),
                                                   localised(meanings[place]));
    }
    window.raidconfigradiobutton->setAccessibleName(localised("raid_configuration"));
    window.raidconfigradiobutton->set_in_use_text(localised("ui_in_use"));
    for (QPushButton* button : {window.cleardisk0button, window.cleardisk1button}) {
        button->setText(button_text(j.with.texts.text("ui_clear")));
    }
    window.cleardisk0button->setAccessibleName(localised("ui_clear_disk_1"));
    window.cleardisk1button->setAccessibleName(localised("ui_clear_disk_2"));
    for (std::size_t port = 0; port < disk_keys.size(); ++port) {
        window.extras->configured[port].caption->set_value(localised(disk_keys[port]));
    }
}

} // namespace

void caption_extras(controller& window) {
    caption_frame(window);
    caption_status(window);
    caption_configuration(window);
    window.tabview->bar()->setAccessibleName(localised("raid_status"));
    window.extras->rebuild_hint->set_value(localised("ui_rebuild_hint"));
    window.extras->evidence->set_words(localised("ui_stays"), localised("ui_overwritten"));
    window.levelindicator->setAccessibleName(localised("rebuild_progress"));
    show_restart_target(window, "");
    window.extras->devices_box->set_title(localised("ui_devices"));
    window.tree->setAccessibleName(localised("ui_devices"));
}

void mark_page_caption(controller& window, int page) {
    for (int other = 0; other < 2; ++other) {
        set_tone(window.extras->page_captions[static_cast<std::size_t>(other)],
                 other == page ? "front" : "quiet");
    }
}

void show_restart_target(controller& window, const std::string& name) {
    QPushButton* button = window.extras->warmbootbutton;
    const std::string text = name.empty() ? j.with.texts.text("ui_restart_enclosure")
                                          : filled(j.with.texts.text("ui_restart_named"), {name});
    constexpr int padding = 24;
    const QString shown = button->fontMetrics().elidedText(one_line(text), Qt::ElideMiddle,
                                                           button->width() - padding);
    button->setText(button_text(shown.toStdString()));
    button->setAccessibleName(one_line(text));
    button->setEnabled(!name.empty());
    set_reason(button, localised("ui_reason_no_enclosure"));
}
