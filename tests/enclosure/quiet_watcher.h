// A desk's watcher that hears nothing.
#pragma once

#include "enclosure/desk.h"

class quiet_watcher : public enclosure::desk_watcher {
public:
    void enclosure_added(const std::string&) override {}
    void enclosure_removed(const std::string&) override {}
    void bridge_arrived(const enclosure::bridge&) override {}
    void bridge_departed(std::uint32_t) override {}
    void enclosure_changed(const std::string&) override {}
    void disk_added(const std::string&) override {}
    void disk_removed(const std::string&) override {}
    void next_handle_changed(std::uint32_t) override {}
};
