// The first page's upper half: the state of the array and its disks.
#include <QFrame>
#include <QLabel>

#include "app/controller.h"
#include "app/placing.h"
#include "app/text_field.h"
#include "app/titled_box.h"
#include "app/window_contents.h"
#include "app/window_extras.h"

namespace {

constexpr int bay_distance = 320;

QRect bay(int port, const QRect& first) {
    return first.translated(port * bay_distance, 0);
}

text_field* line(QWidget* parent, const char* name, const QRect& where, const char* role) {
    return with_role(make<text_field>(parent, name, where), role);
}

text_field* wrapped(text_field* field) {
    field->setWordWrap(true);
    field->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return field;
}

void build_bays(controller& window, QWidget* page) {
    constexpr QRect picture(140, 120, 104, 120);
    constexpr QRect label(260, 122, 176, 22);
    constexpr QRect mode(260, 148, 176, 36);
    constexpr QRect capacity(260, 204, 176, 32);
    window.disk0cappicture = make<text_field>(page, "disk0cappicture", bay(0, picture));
    window.disk1cappicture = make<text_field>(page, "disk1cappicture", bay(1, picture));
    window.disk0label = line(page, "disk0label", bay(0, label), "caption");
    window.disk1label = line(page, "disk1label", bay(1, label), "caption");
    window.disk0picmodefield = wrapped(line(page, "disk0picmodefield", bay(0, mode), "state"));
    window.disk1picmodefield = wrapped(line(page, "disk1picmodefield", bay(1, mode), "state"));
    window.disk0caplabel = line(page, "disk0caplabel", bay(0, capacity), "number");
    window.disk1caplabel = line(page, "disk1caplabel", bay(1, capacity), "number");
    window.extras->bay_divider = with_role(make<QFrame>(page, QRect(447, 128, 1, 104)), "hairline");
    for (int port = 0; port < 2; ++port) {
        const auto place = static_cast<std::size_t>(port);
        auto* empty = make<QLabel>(page, bay(port, picture));
        empty->setPixmap(QIcon(QStringLiteral(":/disk-missing.png")).pixmap(picture.size()));
        window.extras->empty_pictures[place] = empty;
        window.extras->empty_captions[place] =
            with_role(make<text_field>(page, bay(port, label)), "caption", "quiet");
        window.extras->empty_words[place] =
            wrapped(with_role(make<text_field>(page, bay(port, mode)), "state", "faint"));
    }
}

void build_note(controller& window, QWidget* page) {
    window.extras->note_picture = make<QLabel>(page, QRect(140, 122, 216, 120));
    window.extras->note_heading = line(page, "note_heading", QRect(388, 130, 368, 28), "heading");
    window.extras->note_advice = wrapped(with_role(
        make<text_field>(page, "note_advice", QRect(388, 168, 368, 72)), "state", "quiet"));
}

} // namespace

void build_status_page(controller& window, QWidget* page) {
    auto* box =
        with_role(make<titled_box>(page, "raid_status_box", QRect(128, 76, 648, 228)), "box");
    box->place_title(QRect(20, 12, 300, 20));
    window.raid_status_box = box;
    build_bays(window, page);
    window.raidmodelabel = line(page, "raidmodelabel", QRect(388, 120, 368, 32), "array");
    build_note(window, page);

    window.tabview = make<tab_view>(page, "tabview", QRect(128, 316, 648, 290));
    window.configuretab = window.tabview->add_item();
    window.configurebutton = window.configuretab;
    window.rebuildtab = window.tabview->add_item();
    window.rebuildbutton = window.rebuildtab;
}
