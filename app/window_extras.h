// What stands in the window beside the outlets.
#pragma once

#include <array>

#include "util/library.h"

class QFrame;
class QLabel;
class QPushButton;
class QWidget;
class direction_evidence;
class numbered_step;
class text_field;
class titled_box;
class verdict_pill;

// The upper half of the first page.
struct status_extras {
    verdict_pill* verdict = nullptr;
    QPushButton* guide_link = nullptr; // to the guide for a failed disk
    text_field* advice = nullptr;
    // How an array that is drawn as one volume is; the icon only when it is not well.
    QLabel* state_icon = nullptr;
    text_field* state = nullptr;
    QWidget* bay_divider = nullptr;
    // A bay without a disk; index = port.
    std::array<QLabel*, 2> empty_pictures{};
    std::array<text_field*, 2> empty_captions{};
    std::array<text_field*, 2> empty_words{};
    // While there is no chip to show.
    QLabel* enclosure_picture = nullptr;
    text_field* note_heading = nullptr;
    text_field* note_text = nullptr;
    std::array<numbered_step*, 3> steps{};
};

// One disk of the configuration tab.
struct configured_disk {
    text_field* caption = nullptr;
    QLabel* icon = nullptr;           // of its mode, when it is not well
    text_field* nothing_in = nullptr; // in place of the mode of a disk that is not there
};

// One disk of the rebuild tab.
struct rebuild_card {
    QFrame* frame = nullptr;
    text_field* role = nullptr;   // in a running rebuild
    text_field* record = nullptr; // when its record was written
    text_field* fate = nullptr;   // under a direction that is being looked at
};

// One disk of the second page.
struct disk_card {
    QLabel* picture = nullptr;
    text_field* nothing_in = nullptr; // in place of the model of a disk that is not there
};

// Owned by the window's contents. Index = port, or page.
struct window_extras {
    std::array<text_field*, 2> page_captions{};
    status_extras status;
    std::array<configured_disk, 2> configured;
    std::array<rebuild_card, 2> cards;
    direction_evidence* evidence = nullptr; // what a direction would do to them
    // While no rebuild is followed.
    QLabel* hint_icon = nullptr;
    text_field* rebuild_hint = nullptr;
    // Under the progress.
    text_field* speed = nullptr;
    text_field* time_left = nullptr;
    // On the second page.
    std::array<disk_card, 2> disk_cards;
    std::array<text_field*, 2> info_modes{}; // repeat the mode fields
    titled_box* devices_box = nullptr;
    QPushButton* warmbootbutton = nullptr; // restarts the first enclosure of the list
    controller_t restart_target;           // which that was when it was named
};
