// Registry and hot-plug events of the emulated enclosures, taken from the session bus.
#pragma once

#include "device/source_registry.h"

// Follows the enclosure service, which it never starts: bridges arrive when the service appears
// and depart when it ends.
class emulated_registry final : public source_registry {
public:
    emulated_registry();
};
