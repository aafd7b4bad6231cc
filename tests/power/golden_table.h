// The table in docs/reliability.md, between its two marks.
#pragma once

#include <string>

// What stands there now. Throws std::runtime_error without the file or a mark.
std::string kept_table();

// Puts another one in its place. Throws likewise.
void keep_table(const std::string& table);
