// The first page's upper half: the state of the array and its disks.
#include <QFrame>
#include <QLabel>
#include <QPushButton>

#include "app/controller.h"
#include "app/numbered_step.h"
#include "app/places.h"
#include "app/placing.h"
#include "app/text_field.h"
#include "app/titled_box.h"
#include "app/verdict_pill.h"
#include "app/window_contents.h"
#include "app/window_extras.h"

namespace {

constexpr QRect label_place(260, 122, 176, 22);
constexpr QRect mode_place(260, 148, 176, 36);

QRect bay(int port, const QRect& first) {
    return first.translated(port * places::bay_distance, 0);
}

text_field* line(QWidget* parent, const char* name, const QRect& where, const char* role) {
    return with_role(make<text_field>(parent, name, where), role);
}

text_field* wrapped(text_field* field) {
    field->setWordWrap(true);
    field->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return field;
}

void build_empty_bay(status_extras& extras, QWidget* page, int port) {
    const auto place = static_cast<std::size_t>(port);
    extras.empty_pictures[place] = make<QLabel>(page, bay(port, places::disk_picture));
    extras.empty_captions[place] =
        with_role(make<text_field>(page, bay(port, label_place)), "caption", "quiet");
    extras.empty_words[place] =
        wrapped(with_role(make<text_field>(page, bay(port, mode_place)), "state", "faint"));
}

void build_bays(controller& window, QWidget* page) {
    window.disk0cappicture =
        make<text_field>(page, "disk0cappicture", bay(0, places::disk_picture));
    window.disk1cappicture =
        make<text_field>(page, "disk1cappicture", bay(1, places::disk_picture));
    window.disk0label = line(page, "disk0label", bay(0, label_place), "caption");
    window.disk1label = line(page, "disk1label", bay(1, label_place), "caption");
    window.disk0picmodefield =
        wrapped(line(page, "disk0picmodefield", bay(0, mode_place), "state"));
    window.disk1picmodefield =
        wrapped(line(page, "disk1picmodefield", bay(1, mode_place), "state"));
    window.disk0caplabel = line(page, "disk0caplabel", bay(0, places::disk_capacity), "number");
    window.disk1caplabel = line(page, "disk1caplabel", bay(1, places::disk_capacity), "number");
    window.extras->status.bay_divider =
        with_role(make<QFrame>(page, QRect(447, 128, 1, 104)), "hairline");
    for (int port = 0; port < 2; ++port) {
        build_empty_bay(window.extras->status, page, port);
    }
}

void build_verdict(status_extras& extras, QWidget* page) {
    extras.verdict = make<verdict_pill>(page, "verdict_pill", QRect(456, 86, 300, 24));
    extras.guide_link = make<QPushButton>(page, "guide_link", QRect(300, 86, 300, 24));
    extras.guide_link->setProperty("kind", "link");
    extras.guide_link->hide();
    with_role(make<QFrame>(page, QRect(148, 246, 608, 1)), "hairline");
    extras.advice = wrapped(
        with_role(make<text_field>(page, "advice", QRect(148, 256, 608, 40)), "state", "quiet"));
}

void build_volume(controller& window, QWidget* page) {
    status_extras& extras = window.extras->status;
    window.raidmodelabel = line(page, "raidmodelabel", QRect(388, 120, 368, 32), "array");
    extras.state_icon = make<QLabel>(page, QRect(388, 159, 16, 16));
    extras.state = wrapped(line(page, "volume_state", places::volume_state, "state"));
}

void build_note(status_extras& extras, QWidget* page) {
    extras.enclosure_picture = make<QLabel>(page, QRect(140, 122, 216, 120));
    extras.note_heading = line(page, "note_heading", QRect(404, 118, 352, 28), "heading");
    extras.note_text = wrapped(
        with_role(make<text_field>(page, "note_text", QRect(404, 152, 352, 72)), "state", "quiet"));
    for (std::size_t step = 0; step < extras.steps.size(); ++step) {
        constexpr int distance = 28;
        const int down = static_cast<int>(step) * distance;
        extras.steps[step] = make<numbered_step>(page, QRect(404, 156 + down, 352, 22));
    }
}

} // namespace

void build_status_page(controller& window, QWidget* page) {
    auto* box =
        with_role(make<titled_box>(page, "raid_status_box", QRect(128, 76, 648, 228)), "box");
    box->place_title(QRect(20, 12, 300, 20));
    window.raid_status_box = box;
    build_verdict(window.extras->status, page);
    build_bays(window, page);
    build_volume(window, page);
    build_note(window.extras->status, page);

    window.tabview = make<tab_view>(page, "tabview", QRect(128, 316, 648, 290));
    window.configuretab = window.tabview->add_item();
    window.configurebutton = window.configuretab;
    window.rebuildtab = window.tabview->add_item();
    window.rebuildbutton = window.rebuildtab;
}
