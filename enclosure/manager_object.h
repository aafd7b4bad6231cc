// The service's own object: makes and removes enclosures and disks, and manages the others.
#pragma once

#include "enclosure/service_context.h"

#include <memory>

namespace enclosure {

class manager_object {
public:
    explicit manager_object(service_context& context);

private:
    void add_methods();

    service_context& context_;
    std::unique_ptr<sdbus::IObject> object_;
};

} // namespace enclosure
