// The controls of one enclosure on the bus.
#pragma once

#include "enclosure/service_context.h"

#include <memory>
#include <string>

namespace enclosure {

class enclosure_object {
public:
    enclosure_object(service_context& context, std::string name);
    ~enclosure_object();
    enclosure_object(const enclosure_object&) = delete;
    enclosure_object& operator=(const enclosure_object&) = delete;

private:
    void add_bay_methods();
    void add_bus_methods();
    void add_export_methods();
    void add_trial_methods();

    service_context& context_;
    std::string name_;
    std::unique_ptr<sdbus::IObject> object_;
};

} // namespace enclosure
