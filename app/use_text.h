// Why a volume that is in use keeps a change from being made.
#pragma once

#include <string>
#include <vector>

#include "device/volume_uses.h"
#include "model/services.h"

struct panel_request;

// UTF-8. A mount point may bring any characters, but no controls.
struct use_view {
    std::string message;            // that nothing was changed, and what helps
    std::vector<std::string> lines; // what is used where; the last counts what has no room
};

// Of at least one use. Any thread.
use_view describe(const std::vector<volume_use>& uses, const text_lookup& texts);

// Makes a refusal of a question, with its first button to close it. Its plan says that it was not
// carried out, and what is to be known before it is goes. Of at least one use. Any thread.
void refuse_instead(panel_request& question, const std::vector<volume_use>& uses,
                    const text_lookup& texts);
