// Bytes as hexadecimal digits.
#pragma once

#include "enclosure/units.h"

#include <string>
#include <string_view>

namespace enclosure {

// Two digits for each byte, in lower case.
std::string to_hex(byte_view bytes);

// Reads digits of either case. False when they are not exactly two for each byte of `bytes`,
// which then stay as they are.
bool from_hex(std::string_view digits, byte_room bytes);

} // namespace enclosure
