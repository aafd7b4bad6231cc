// The enclosure service as seen over the session bus.
#pragma once

#include "device/emulated_bridges.h"

#include <sdbus-c++/sdbus-c++.h>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

// Follows the service: when it appears, when it ends, and its bridges' comings and goings. It
// never starts it. One thread at a time; what happens is told during process() and listen().
class emulated_bus {
public:
    struct listener {
        std::function<void(const emulated_bridge& bridge)> arrived;
        std::function<void(std::uint32_t handle)> departed;
    };

    explicit emulated_bus(listener told) : told_(std::move(told)) {}

    // Joins the bus, listens and then asks for the bridges that are there. Throws sdbus::Error
    // when there is no bus.
    void listen();

    // Takes in what has arrived by now, and asks the service again that has not told its bridges
    // so far; that may take 5 seconds. False: the bus has gone, and every bridge with it.
    bool process();

    // Takes in all that was sent before this call, by asking the bus something. False as above.
    bool catch_up();

    // For poll(): the descriptor and its events.
    sdbus::IConnection::PollData poll_data() const { return connection_->getEventLoopPollData(); }

    // For poll(): after how many milliseconds process() is next needed at the latest; -1: never.
    int poll_timeout() const;

private:
    using options = std::map<std::string, sdbus::Variant>;
    using interfaces = std::map<std::string, options>;

    void add_matches();
    void owner_changed(const std::string& owner);
    bool enumerate();
    void ask_again();
    void take_in(const emulated_bridge& bridge);
    void name_owner_changed(sdbus::Message& message);
    void object_added(sdbus::Message& message);
    void object_removed(sdbus::Message& message);
    void all_departed();
    std::string ask_owner();

    listener told_;
    std::unique_ptr<sdbus::IConnection> connection_;
    std::vector<sdbus::Slot> matches_;
    std::string owner_;                  // unique name of the service; empty: there is none
    bool asked_in_vain_ = false;         // it has not told its bridges
    std::vector<std::uint32_t> present_; // handles in the order of arrival
};
