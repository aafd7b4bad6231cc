// A session bus that a test can end, and the address that says which bus is used.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>

// Sets DBUS_SESSION_BUS_ADDRESS for its scope. No other thread may be running.
class bus_address {
public:
    explicit bus_address(const std::string& address);
    ~bus_address();
    bus_address(const bus_address&) = delete;
    bus_address& operator=(const bus_address&) = delete;

private:
    std::optional<std::string> former_;
};

class private_bus {
public:
    private_bus();
    ~private_bus();
    private_bus(const private_bus&) = delete;
    private_bus& operator=(const private_bus&) = delete;

    const std::string& address() const { return address_; }

    // Kills the bus.
    void end();

private:
    pid_t pid_ = 0;
    std::string address_;
};
