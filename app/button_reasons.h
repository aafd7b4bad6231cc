// Why a button of the window is off.
#pragma once

#include <array>
#include <string>

#include "model/services.h"

class krchip;

// What is said of each button while it is off; empty where nothing keeps it off. Texts are UTF-8.
struct button_reasons {
    std::string create;
    std::string clear_array;
    std::array<std::string, 2> rebuild; // index = port of the disk that would be read
};

// Of a chip with any field values. Any thread.
button_reasons reasons_of(const krchip& chip, const text_lookup& texts);

// While the enclosure restarts, every button is off whatever the chip's record says. Any thread.
button_reasons reasons_while_restarting(const text_lookup& texts);
