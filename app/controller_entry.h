// The text of a controller list entry.
#pragma once

#include <string>

struct controller_t;

// The bridge's name in the registry and its identity, UTF-8. Any thread.
std::string controller_entry_text(const controller_t& identity, const std::string& name);
