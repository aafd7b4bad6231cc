// A bridge on the bus.
#pragma once

#include "enclosure/service_context.h"

#include <memory>

namespace enclosure {

// Announces itself when made and takes its leave when destroyed; not in one of its own calls.
class bridge_object {
public:
    bridge_object(service_context& context, const bridge& what);
    ~bridge_object();
    bridge_object(const bridge_object&) = delete;
    bridge_object& operator=(const bridge_object&) = delete;

private:
    using answer =
        sdbus::Result<std::uint8_t, std::vector<std::uint8_t>, std::vector<std::uint8_t>>;

    void add_properties();
    void execute(answer&& result, const std::vector<std::uint8_t>& cdb, std::uint32_t allocation,
                 const std::vector<std::uint8_t>& data_out);

    service_context& context_;
    bridge what_;
    std::unique_ptr<sdbus::IObject> object_;
};

} // namespace enclosure
