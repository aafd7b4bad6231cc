// The pace of a rebuild in words. Any thread.
#pragma once

#include <string>

#include "app/copy_pace.h"
#include "model/services.h"

// "148 MB/s", of millions of bytes, with a decimal below ten; "stalled"; empty while nothing is
// known.
std::string speed_text(const pace_view& pace, const text_lookup& texts);

// "about 2 h 20 min left", rounded down to whole minutes; empty while nothing is known.
std::string time_left_text(const pace_view& pace, const text_lookup& texts);
