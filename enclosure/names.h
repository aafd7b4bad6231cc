// Names of enclosures and disks.
#pragma once

#include <string>
#include <string_view>

namespace enclosure {

// 1 to 32 characters out of A-Z a-z 0-9 _ - : safe as a file name.
bool is_name(std::string_view name);

// Throws problem when `name` is none; `what` is what it names, as in "enclosure".
void check_name(std::string_view what, std::string_view name);

// `name` as an element of a D-Bus object path: other characters than letters and digits become
// "_" and two hexadecimal digits.
std::string path_element(std::string_view name);

// `text` fit for a line on a terminal: everything but printable ASCII becomes "?", and what is
// longer than 100 characters is cut.
std::string printable(std::string_view text);

} // namespace enclosure
