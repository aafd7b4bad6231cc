// The way that the access library takes to its bridges.
#pragma once

#include "enclosure/transport.h"

namespace enclosure {

// Lives until the process ends. Which one it is, is the library's that links it. Any thread may ask
// for it; it serves one at a time. Throws bad_alloc alone.
transport& library_way();

} // namespace enclosure
