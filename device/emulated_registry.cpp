#include "device/emulated_registry.h"

#include "device/emulated_bus.h"

#include <memory>

emulated_registry::emulated_registry() : source_registry(std::make_unique<emulated_bus>()) {}
