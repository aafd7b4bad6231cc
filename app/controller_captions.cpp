// Fixed captions, pages, busy indicator and the device tree.
#include <QPushButton>
#include <QTreeView>
#include <memory>
#include <utility>

#include "app/controller.h"
#include "app/scene.h"
#include "app/text_field.h"
#include "app/titled_box.h"
#include "app/tree_model.h"
#include "app/treeview.h"
#include "app/window_keys.h"
#include "app/working_indicator.h"
#include "model/krtool.h"

void controller::setGUIStrings() {
    const std::string create = localised("create_raid");
    const std::string remove = localised("delete_raid");
    const std::string configuration = localised("raid_configuration");
    const std::string configuration_tab = localised("configuration_tab");
    const std::string rebuild = localised("rebuild");
    const std::string progress = localised("rebuild_progress");
    const std::string serial = localised("SN");
    const std::string disk_1 = localised("disk_1");
    const std::string disk_2 = localised("disk_2");
    const std::string size = localised("phy_size");
    const std::string mode = localised("mode");
    const std::string status = localised("raid_status");
    const std::string reload = localised("refresh_button");
    outlets.set_title(confirmbutton, create);
    outlets.set_title(clearconfigbutton, remove);
    outlets.set_title(raid_config_radio_box, configuration);
    outlets.set_label(tabview, 0, configuration_tab);
    outlets.set_label(tabview, 1, rebuild);
    outlets.set_text(rebuildlabel, progress);
    outlets.set_text(disk1_SN_static_label, serial);
    outlets.set_text(disk2_SN_static_label, serial);
    outlets.set_text(disk1_info_static_label, disk_1);
    outlets.set_text(disk2_info_static_label, disk_2);
    outlets.set_text(disk1_rebuild_static_label, disk_1);
    outlets.set_text(disk2_rebuild_static_label, disk_2);
    outlets.set_text(disk1_physize_static_label, size);
    outlets.set_text(disk2_physize_static_label, size);
    outlets.set_text(disk1_mode_static_label, mode);
    outlets.set_text(disk2_mode_static_label, mode);
    outlets.set_title(raid_status_box, status);
    outlets.set_title(refresh_button, reload);
    outlets.set_title(rebuild0to1button, rebuild + "->");
    outlets.set_title(rebuild1to0button, "<-" + rebuild);
    caption_extras(*this);
    give_keys(*this);
}

void controller::switchguimain() {
    ui([this] {
        outlets.set_image(showdiskguibutton, "SysInfo_normal.png");
        outlets.set_image(mainguibutton, "RaidST_click.png");
        outlets.select(guitab, 0);
        mark_page_caption(*this, 0);
    });
}

void controller::switchguishowdisk() {
    ui([this] {
        outlets.set_image(showdiskguibutton, "SysInfo_click.png");
        outlets.set_image(mainguibutton, "RaidST_normal.png");
        outlets.select(guitab, 1);
        mark_page_caption(*this, 1);
    });
}

void controller::startworking() {
    ui([this] {
        workingindicator->start_animation();
        show_scanning_scene(*this);
    });
}

void controller::stopworking() {
    ui([this] { workingindicator->stop_animation(); });
}

void controller::refreshtree() {
    ui([this] {
        std::unique_ptr<const treeview> copy;
        {
            const lock_scope lock(j.records);
            copy = std::make_unique<const treeview>(tree_data_);
        }
        tree_model_->set_data_source(nullptr);
        tree_model_->set_data_source(std::move(copy));
    });
}

void controller::expandtree() {
    ui([this] {
        QModelIndexList items;
        for (int row = 0; tree_model_->hasIndex(row, 0); ++row) {
            items.append(tree_model_->index(row, 0));
        }
        for (const QModelIndex& item : items) {
            tree->expandRecursively(item);
        }
    });
}
