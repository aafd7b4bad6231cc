// A krenclosured of the test's own on the session bus, which must be a private one.
#pragma once

#include "enclosure/dbus_names.h"
#include "enclosure/service_client.h"

#include "tests/enclosure/temporary_folder.h"

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <memory>

// Hears what the service and its objects announce. One thread.
class bus_watch {
public:
    bus_watch();

    // Waits for signals until `reached` holds; false after half a minute without.
    bool until(const std::function<bool()>& reached);

    bool service_runs();

private:
    std::unique_ptr<sdbus::IConnection> connection_;
    std::vector<sdbus::Slot> matches_;
};

// Starts and ends the service; its folder outlives its restarts.
class host_process {
public:
    host_process();
    ~host_process();
    host_process(const host_process&) = delete;
    host_process& operator=(const host_process&) = delete;

    // Waits until the service has its name.
    void start();

    // Ends it by SIGTERM and gives its exit status.
    int stop();

    // Ends it by SIGKILL.
    void kill();

    // Waits for its end when the bus has gone, and gives its exit status.
    int abandon();

    bool runs() const { return pid_ > 0; }
    enclosure::service_client& client() { return client_; }
    bus_watch& bus() { return watch_; }
    std::filesystem::path folder() const { return folder_.path() / "kestrelraid"; }

    // The handle of an enclosure, 0 while it is not on the bus; and the wait for a new one.
    std::uint32_t handle_of(const std::string& name);
    std::uint32_t wait_for_new_handle(const std::string& name, std::uint32_t former);

private:
    int wait_for_end();
    int collect();

    temporary_folder folder_;
    bus_watch watch_;
    enclosure::service_client client_;
    pid_t pid_ = 0;
};
