// Showing the state of the selected chip.
#include <QPushButton>
#include <QTreeView>
#include <array>

#include "app/announcement.h"
#include "app/controller.h"
#include "app/krview.h"
#include "app/level_indicator.h"
#include "app/outlook.h"
#include "app/plain_text.h"
#include "app/scene.h"
#include "app/text_field.h"
#include "model/krtool.h"
#include "model/monitors.h"

struct controller::disk_outlets {
    text_field* modelfield;
    text_field* serialfield;
    text_field* sizefield;
    text_field* modefield;
    text_field* rebuilddiskfield;
    text_field* oldnewlabel;
    text_field* picmodefield;
    text_field* caplabel;
    text_field* cappicture;
    text_field* label;
    QPushButton* cleardiskbutton;
    QPushButton* rebuildbutton;
};

controller::disk_outlets controller::outlets_of_disk(std::size_t port) {
    if (port == 0) {
        return {disk0modelfield,   disk0serialfield, disk0sizefield,    disk0modefield,
                rebuilddisk0field, disk0oldnewlabel, disk0picmodefield, disk0caplabel,
                disk0cappicture,   disk0label,       cleardisk0button,  rebuild0to1button};
    }
    return {disk1modelfield,   disk1serialfield, disk1sizefield,    disk1modefield,
            rebuilddisk1field, disk1oldnewlabel, disk1picmodefield, disk1caplabel,
            disk1cappicture,   disk1label,       cleardisk1button,  rebuild1to0button};
}

void controller::cleargui() {
    ui([this] {
        const auto empty = [this](std::initializer_list<text_field*> fields) {
            for (text_field* field : fields) {
                outlets.set_text(field, "");
            }
        };
        const auto hide = [this](std::initializer_list<QWidget*> widgets) {
            for (QWidget* widget : widgets) {
                outlets.set_hidden(widget, true);
            }
        };
        hide({tree});
        empty({disk0modelfield, disk0serialfield, disk0modefield, disk0sizefield, disk1modelfield,
               disk1serialfield, disk1modefield, disk1sizefield});
        for (QPushButton* button : {cleardisk0button, cleardisk1button}) {
            outlets.set_enabled(button, false);
            outlets.set_hidden(button, true);
        }
        empty({rebuilddisk0field, rebuilddisk1field});
        outlets.set_enabled(rebuild0to1button, false);
        outlets.set_enabled(rebuild1to0button, false);
        empty({disk0oldnewlabel, disk1oldnewlabel, disk0picmodefield, disk1picmodefield,
               raidmodelabel, disk0caplabel});
        hide({disk0cappicture});
        empty({disk0label, disk1caplabel});
        hide({disk1cappicture});
        empty({disk1label});
        outlets.set_enabled(rebuild1to0button, false);
        outlets.set_enabled(rebuild0to1button, false);
        hide({levelindicator, rebuildlabel, percentagefield});
        outlets.select(tabview, 0);
        outlets.highlight(rebuild1to0button, false);
        outlets.highlight(rebuild1to0button, false);
        outlets.set_image(rebuild0to1button, "");
        outlets.set_image(rebuild1to0button, "");
        refreshgui();
        disablegui(false);
        outlets.needs_display(mainview);
        clear_scene(*this);
        forget_pace();
    });
}

void controller::refreshgui() {
    ui([this] {
        const std::array<QWidget*, 28> status = {
            disk0modefield,    disk0serialfield,  disk0modelfield,   disk0sizefield,
            disk1modelfield,   disk1serialfield,  disk1modefield,    disk1sizefield,
            cleardisk0button,  cleardisk1button,  rebuilddisk0field, rebuilddisk1field,
            rebuild0to1button, rebuild1to0button, disk0oldnewlabel,  disk1oldnewlabel,
            disk0picmodefield, disk1picmodefield, raidmodelabel,     disk0caplabel,
            disk0cappicture,   disk0label,        disk1caplabel,     disk1cappicture,
            disk1label,        levelindicator,    rebuildlabel,      percentagefield};
        for (QWidget* outlet : status) {
            outlets.needs_display(outlet);
        }
    });
}

void controller::showrebuildbuttons() {
    ui([this] {
        outlets.set_hidden(levelindicator, false);
        outlets.set_hidden(rebuildlabel, false);
        outlets.set_hidden(percentagefield, false);
        show_progress_scene(*this);
    });
}

void controller::update_raid_information() {
    as_body([this] { show_status(); });
}

void controller::show_status() {
    const bool decimal_units = check_OS_version();
    const auto view_of = [&](const std::optional<chip_snapshot>& taken) {
        return status_view(taken ? &taken->chip : nullptr, decimal_units, j.with.texts);
    };
    std::optional<chip_snapshot> current;
    view_state view;
    ui([&] {
        current = j.current_chip();
        view = view_of(current);
        cleargui();
        disablegui(false);
        if (!view.blank) {
            const outlook now = outlook_of(current->chip, decimal_units, j.with.texts);
            apply(view, now);
            const std::string array = view.raid_valid ? view.raidmodelabel : std::string();
            announce(mainview, one_line(in_words(now, array, j.with.texts)));
        } else if (!j.has_chips()) {
            show_empty_scene(*this);
        }
    });
    if (view.blank) {
        return;
    }
    const chip_place place = current->place;
    show_alerts(view, place);
    current = j.current_chip();
    if (!current || !(current->place == place)) {
        return; // whoever has read the bridges since then has shown them
    }
    show_rebuild(current->chip, view_of(current), place);
    ui([&] {
        if (j.current_place() == place) {
            outlets.set_hidden(tree, false);
            outlets.needs_display(mainview);
        }
    });
}

void controller::apply(const view_state& view, const outlook& now) {
    for (std::size_t port = 0; port < view.disks.size(); ++port) {
        if (view.disks[port].present) {
            apply_disk(view.disks[port], port, !view.raid_valid);
        }
    }
    if (view.raid_valid) {
        apply_array(view);
    }
    if (view.both_idle) {
        outlets.set_enabled(confirmbutton, true);
    }
    show_chip_scene(*this, view, now);
}

void controller::apply_disk(const disk_view& view, std::size_t port, bool single) {
    const disk_outlets disk = outlets_of_disk(port);
    outlets.set_enabled(showdiskguibutton, true);
    outlets.set_text(disk.modelfield, view.modelfield);
    outlets.set_text(disk.serialfield, view.serialfield);
    outlets.set_text(disk.sizefield, view.sizefield);
    outlets.set_text(disk.rebuilddiskfield, view.rebuilddiskfield);
    if (view.rebuildbutton) {
        outlets.set_enabled(disk.rebuildbutton, true);
    }
    if (!view.oldnewlabel.empty()) {
        outlets.set_text(disk.oldnewlabel, view.oldnewlabel);
    }
    if (view.cleardiskbutton) {
        outlets.set_enabled(disk.cleardiskbutton, true);
        outlets.set_hidden(disk.cleardiskbutton, false);
    }
    outlets.set_text(disk.modefield, view.modefield);
    if (single) {
        outlets.set_text(disk.caplabel, view.caplabel);
        outlets.set_hidden(disk.cappicture, false);
        outlets.set_text(disk.label, view.label);
        if (!view.picmodefield.empty()) {
            outlets.set_text(disk.picmodefield, view.picmodefield);
        }
    }
}

void controller::apply_array(const view_state& view) {
    outlets.set_enabled(confirmbutton, view.confirmbutton);
    outlets.set_enabled(clearconfigbutton, view.clearconfigbutton);
    outlets.set_text(disk0caplabel, view.disks[0].caplabel);
    outlets.set_text(disk1caplabel, view.disks[1].caplabel);
    outlets.set_text(disk0label, view.disks[0].label);
    outlets.set_text(disk1label, view.disks[1].label);
    outlets.set_hidden(disk0cappicture, !view.disks[0].cappicture);
    outlets.set_hidden(disk1cappicture, !view.disks[1].cappicture);
    outlets.set_text(raidmodelabel, view.raidmodelabel);
}

// The alerts wait for a person: whoever needs the records meanwhile may have them.
void controller::show_alerts(const view_state& view, chip_place place) {
    for (const std::string& message : view.alerts) {
        const gate_pause others_may_work(j.gate);
        if (j.current_place() == place) {
            inform(view.alert_title, message, urgency::critical);
        }
    }
}

void controller::show_rebuild(const krchip& chip, const view_state& view, chip_place place) {
    const bool gate_grants = chip.rebuild_possible != 0;
    if (view.rebuild_tab_for_choice) {
        bring_rebuild_tab(gate_grants);
    }
    if (!view.rebuild_running) {
        return;
    }
    start_wanted_poller(place);
    bring_rebuild_tab(gate_grants);
    ui([&] {
        if (!(j.current_place() == place)) {
            return;
        }
        QPushButton* direction = view.rebuild_source == 0 ? rebuild0to1button : rebuild1to0button;
        outlets.set_image(direction, "yellow.JPG");
        mark_running(*this, view.rebuild_source.value_or(0));
    });
}

void controller::bring_rebuild_tab(bool gate_grants) {
    std::optional<gate_pause> others_may_work;
    if (!gate_grants) {
        others_may_work.emplace(j.gate); // the refusal waits for a person
    }
    ui([this] { outlets.select(tabview, rebuildbutton->index); });
}
