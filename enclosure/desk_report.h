// A desk as JSON for readers.
#pragma once

#include "enclosure/desk.h"

#include <cstdint>
#include <optional>
#include <string>

namespace enclosure {

// The document that 'krenclosure list --json' prints; docs/formats-enclosure.md describes it.
std::string report(const desk& of, std::optional<std::uint16_t> usbip_port);

} // namespace enclosure
