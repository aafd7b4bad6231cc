// The second page: what both disks are, and the device tree.
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <array>

#include "app/controller.h"
#include "app/placing.h"
#include "app/spoken_parts.h"
#include "app/text_field.h"
#include "app/titled_box.h"
#include "app/window_contents.h"
#include "app/window_extras.h"

namespace {

constexpr int card_distance = 332;

// The names of a card's outlets, and where the controller keeps them.
struct card_outlets {
    text_field** heading;
    text_field** model;
    std::array<text_field**, 3> captions;
    std::array<text_field**, 3> values;
    std::array<const char*, 8> names; // heading, model, captions, values
};

text_field* value_field(QWidget* page, const char* name, const QRect& where) {
    auto* field = with_role(make<text_field>(page, name, where), "value");
    field->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return field;
}

text_field* caption_field(QWidget* page, const char* name, const QRect& where) {
    auto* field = with_role(make<text_field>(page, name, where), "state", "quiet");
    field->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    field->setWordWrap(true);
    return field;
}

disk_card build_card(QWidget* page, int port, const card_outlets& outlets) {
    constexpr int row_distance = 38;
    const auto at = [port](const QRect& first) {
        return first.translated(port * card_distance, 0);
    };
    with_role(make<QFrame>(page, at(QRect(128, 76, 316, 212))), "box");
    auto* picture = make<QLabel>(page, at(QRect(148, 92, 45, 52)));
    *outlets.heading =
        with_role(make<text_field>(page, outlets.names[0], at(QRect(208, 90, 216, 22))), "caption");
    tell_picture(picture, {*outlets.heading});
    *outlets.model = caption_field(page, outlets.names[1], at(QRect(208, 114, 216, 36)));
    auto* nothing_in =
        with_role(make<text_field>(page, at(QRect(208, 114, 216, 18))), "state", "faint");
    with_role(make<QFrame>(page, at(QRect(148, 158, 276, 1))), "hairline");
    for (std::size_t row = 0; row < outlets.captions.size(); ++row) {
        const int down = static_cast<int>(row) * row_distance;
        *outlets.captions[row] =
            caption_field(page, outlets.names[2 + row], at(QRect(148, 170 + down, 108, 36)));
        *outlets.values[row] =
            value_field(page, outlets.names[5 + row], at(QRect(260, 170 + down, 164, 36)));
    }
    return {picture, nothing_in};
}

void build_cards(controller& window, QWidget* page) {
    window_extras& extras = *window.extras;
    extras.disk_cards[0] =
        build_card(page, 0,
                   {&window.disk1_info_static_label,
                    &window.disk0modelfield,
                    {&window.disk1_SN_static_label, &window.disk1_mode_static_label,
                     &window.disk1_physize_static_label},
                    {&window.disk0serialfield, &extras.info_modes[0], &window.disk0sizefield},
                    {"disk1_info_static_label", "disk0modelfield", "disk1_SN_static_label",
                     "disk1_mode_static_label", "disk1_physize_static_label", "disk0serialfield",
                     "disk0infomode", "disk0sizefield"}});
    extras.disk_cards[1] =
        build_card(page, 1,
                   {&window.disk2_info_static_label,
                    &window.disk1modelfield,
                    {&window.disk2_SN_static_label, &window.disk2_mode_static_label,
                     &window.disk2_physize_static_label},
                    {&window.disk1serialfield, &extras.info_modes[1], &window.disk1sizefield},
                    {"disk2_info_static_label", "disk1modelfield", "disk2_SN_static_label",
                     "disk2_mode_static_label", "disk2_physize_static_label", "disk1serialfield",
                     "disk1infomode", "disk1sizefield"}});
    window.disk0modefield->repeat_in(extras.info_modes[0]);
    window.disk1modefield->repeat_in(extras.info_modes[1]);
}

void build_devices(controller& window, QWidget* page) {
    auto* box = with_role(make<titled_box>(page, "devices_box", QRect(128, 304, 648, 302)), "box");
    box->place_title(QRect(20, 12, 200, 20));
    window.extras->devices_box = box;
    window.extras->warmbootbutton =
        make<QPushButton>(page, "warmbootbutton", QRect(356, 310, 400, 32));
    auto* tree = make<QTreeView>(page, "tree", QRect(140, 348, 624, 246));
    tree->setHeaderHidden(true);
    tree->setIndentation(24);
    tree->setUniformRowHeights(true);
    tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tree->setTextElideMode(Qt::ElideMiddle);
    tree->setIconSize(QSize(16, 16));
    window.tree = tree;
}

} // namespace

void build_information_page(controller& window, QWidget* page) {
    build_cards(window, page);
    build_devices(window, page);
}
