// Real bridges, as the kernel's device tree has them and udev tells of them.
#pragma once

#include "device/bridge_node.h"
#include "device/bridge_source.h"
#include "device/udev_events.h"
#include "device/udev_pointers.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// A bridge arrives with its first SCSI generic node, once udev has made it ready, and departs with
// that node; further nodes of the same bus device (LUNs) are known without being told. What a
// bridge is called by is read when it arrives, for nothing of it is left when it departs.
class udev_source final : public bridge_source {
public:
    udev_source();

    // With another source of events and another way to tell arrivals apart.
    udev_source(std::unique_ptr<node_events> events, arrival_number arrival);

    bool listen(listener told) override;

    // After events were lost, the rest is dropped and every node looked at once; should that look
    // fail, nothing changes and it is made again, each second. False: nothing can be read any more.
    bool process() override;

    // Takes in what udev has told; it tells of a node a little after the kernel has made it.
    bool catch_up() override;

    pollfd watched() const override;
    int poll_timeout() const override;

private:
    void take(const node_event& event);
    bool make_good();
    void look_at_everything();
    void end();
    std::optional<std::vector<bridge_node>> nodes_there() const;
    void arrive(const bridge_node& node);
    void depart(const std::string& path);
    bool is_told(const std::string& bus_device) const;

    std::unique_ptr<node_events> events_;
    arrival_number arrival_;
    listener told_;
    udev_pointer<udev> context_;
    std::map<std::string, bridge_node> present_; // by path
    bool owes_look_ = false;                     // at everything, as the last one failed
    bool ended_ = false;
};
