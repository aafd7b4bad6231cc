// What requests on the bus carry, as values of the desk.
#pragma once

#include "enclosure/cabinet.h"
#include "enclosure/dbus_names.h"
#include "enclosure/fault_rule.h"
#include "enclosure/identify.h"

#include <cstdint>
#include <vector>

namespace enclosure {

// Options are named and typed as in docs/formats-enclosure.md; what is left out has its usual
// value. Whether the values make sense together is the desk's to say. Any thread. Throw problem for
// an option that is unknown, of another type or out of range.
cabinet_settings settings_from(const bus::options& values);
fault_rule rule_from(const bus::options& values);

// The block of 512 bytes. Throws problem for any other number.
identify_block identity_from(const std::vector<std::uint8_t>& bytes);

} // namespace enclosure
