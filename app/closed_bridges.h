// Why enclosures that are connected are not in the list, and what to do about it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "device/registry.h"
#include "model/services.h"

struct closed_note {
    const char* heading; // a key
    std::string text;
};

// What to say while no enclosure is listed although `connected` are there; nothing when none is.
// Those that the user may not use come first. Any thread.
std::optional<closed_note> note_on(const std::vector<reached_bridge>& connected,
                                   const text_lookup& texts);
