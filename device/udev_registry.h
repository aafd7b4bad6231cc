// Registry and hot-plug events of real bridges on USB and FireWire.
#pragma once

#include "device/source_registry.h"

// Bridges are the SCSI devices that the rule of data/60-kestrelraid.rules chooses.
class udev_registry final : public source_registry {
public:
    udev_registry();
};
