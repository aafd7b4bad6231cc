// The enclosure service as seen over the session bus.
#pragma once

#include "device/bridge_source.h"

#include <sdbus-c++/sdbus-c++.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

// Follows the service: when it appears, when it ends, and its bridges' comings and goings. It
// never starts it.
class emulated_bus final : public bridge_source {
public:
    // Joins the bus, listens and then asks for the bridges that are there.
    bool listen(listener told) override;

    // Asks the service again as well, when it has not told its bridges so far.
    bool process() override;

    // Asks the bus something: all that was sent before comes before the answer.
    bool catch_up() override;

    pollfd watched() const override;
    int poll_timeout() const override;

private:
    using options = std::map<std::string, sdbus::Variant>;
    using interfaces = std::map<std::string, options>;

    void join();
    void add_matches();
    void owner_changed(const std::string& owner);
    bool enumerate();
    void ask_again();
    void take_in(const bridge_identity& bridge);
    void name_owner_changed(sdbus::Message& message);
    void object_added(sdbus::Message& message);
    void object_removed(sdbus::Message& message);
    void all_departed();
    void bus_has_gone();
    std::string ask_owner();

    listener told_;
    std::unique_ptr<sdbus::IConnection> connection_;
    std::vector<sdbus::Slot> matches_;
    std::string owner_;                  // unique name of the service; empty: there is none
    bool asked_in_vain_ = false;         // it has not told its bridges
    bool gone_ = false;                  // the bus
    std::vector<std::uint32_t> present_; // handles in the order of arrival
};
