#include "device/udev_registry.h"

#include "device/udev_source.h"

#include <memory>

udev_registry::udev_registry() : source_registry(std::make_unique<udev_source>()) {}
