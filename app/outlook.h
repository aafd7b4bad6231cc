// How the array of the selected chip stands, in words: the verdict, what follows from it, and why
// a button is off. Worked out without a window.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "app/button_reasons.h"
#include "model/services.h"

class krchip;

enum class verdict {
    no_enclosure,
    closed, // an enclosure is connected, and cannot be used
    scanning,
    no_disks,
    not_configured,
    healthy,
    degraded,
    copies_differ,
    broken,
    rebuilding
};

// One disk of the rebuild tab.
struct copy_side {
    std::string role;   // source or target of a running rebuild
    std::string record; // when its record was written
};

struct outlook {
    verdict is = verdict::no_enclosure;
    std::string word;               // the verdict in a word or two
    std::string state;              // of an array that is drawn as one volume
    std::string advice;             // what it means and what can be done, at most two lines
    std::optional<int> kind_in_use; // row of the array kinds
    bool create_is_next = false;    // nothing is more natural than to create an array
    bool failure = false;           // a disk is lost: the guide helps
    button_reasons reasons;
    std::array<copy_side, 2> sides; // index = port
};

// Of a chip with any field values. Any thread.
outlook outlook_of(const krchip& chip, bool decimal_units, const text_lookup& texts);

// While there is no chip to speak of. Any thread.
outlook outlook_without_enclosure(const text_lookup& texts);
outlook outlook_on_closed_enclosure(const text_lookup& texts);
outlook outlook_while_scanning(const text_lookup& texts);

// For those who hear the window: the array by name, unless it is empty, the verdict and the advice.
// Any thread.
std::string in_words(const outlook& now, const std::string& array, const text_lookup& texts);
