// The service that owns the enclosures of a session.
#pragma once

#include "enclosure/bridge_object.h"
#include "enclosure/enclosure_object.h"
#include "enclosure/manager_object.h"
#include "enclosure/state_store.h"

#include <map>
#include <memory>
#include <string>

namespace enclosure {

// One thread.
class host_service final : private desk_watcher {
public:
    // `connection` has the service's name already; requests wait until run(). `complain` takes
    // what clients of exported enclosures do wrong.
    host_service(sdbus::IConnection& connection, state_store& store, line_sink complain);
    ~host_service() override;

    // Serves the bus and lets time pass on the desk until `stop_fd` becomes readable. Throws
    // sdbus::Error when the bus goes away.
    void run(int stop_fd);

private:
    void enclosure_added(const std::string& name) override;
    void enclosure_removed(const std::string& name) override;
    void enclosure_changed(const std::string& name) override;
    void bridge_arrived(const bridge& what) override;
    void bridge_departed(std::uint32_t handle) override;
    void disk_added(const std::string& name) override;
    void disk_removed(const std::string& name) override;
    void next_handle_changed(std::uint32_t next) override;

    bool serve();
    void answer_due(moment now);
    void save_copies(moment now, bool at_once);
    void wait(int stop_fd);

    state_store& store_;
    desk desk_;
    kernel_peer_owner owners_;
    usb_host usb_;
    service_context context_;
    manager_object manager_;
    std::map<std::string, std::unique_ptr<enclosure_object>> enclosures_;
    std::map<std::uint32_t, std::unique_ptr<bridge_object>> bridges_;
    moment saved_at_{0};
};

} // namespace enclosure
