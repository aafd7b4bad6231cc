// What stands in the window beside the outlets.
#pragma once

#include <array>

#include "util/library.h"

class QLabel;
class QPushButton;
class QWidget;
class text_field;
class titled_box;

// Owned by the window's contents. Index = port, or page.
struct window_extras {
    std::array<text_field*, 2> page_captions{};
    // On the first page, while there is no chip to show.
    QLabel* note_picture = nullptr;
    text_field* note_heading = nullptr;
    text_field* note_advice = nullptr;
    // A bay without a disk.
    std::array<QLabel*, 2> empty_pictures{};
    std::array<text_field*, 2> empty_captions{};
    std::array<text_field*, 2> empty_words{};
    QWidget* bay_divider = nullptr;
    // On the configuration tab.
    std::array<text_field*, 2> config_captions{};
    // While no rebuild is followed.
    QLabel* hint_icon = nullptr;
    text_field* rebuild_hint = nullptr;
    // On the second page.
    std::array<text_field*, 2> info_modes{}; // repeat the mode fields
    titled_box* devices_box = nullptr;
    QPushButton* warmbootbutton = nullptr; // restarts the first enclosure of the list
    controller_t restart_target;           // which that was when it was named
};
