// Enclosures and disks as JSON, as the host service keeps them.
#pragma once

#include "enclosure/desk.h"

#include <string>

namespace enclosure {

// The texts of the state files. docs/formats-enclosure.md describes them. `copy` is the
// enclosure's copy as far as it is lasting.
std::string enclosure_to_json(const cabinet& what, const std::optional<kept_copy>& copy);
std::string disk_to_json(const disk& which);
std::string next_handle_to_json(std::uint32_t next);

// Throw problem when the text is not such a file's or a value is out of range.
desk::former_cabinet enclosure_from_json(const std::string& text, const std::string& name);
identify_block disk_from_json(const std::string& text);
std::uint32_t next_handle_from_json(const std::string& text);

} // namespace enclosure
