// The exports of a desk over USB/IP: the enclosures, and the socket while there are any.
#pragma once

#include "enclosure/usb_exports.h"
#include "enclosure/usbip_server.h"

#include <poll.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace enclosure {

// One thread, the desk's.
class usb_host {
public:
    // `on` and `owners` outlive it.
    usb_host(desk& on, peer_owner& owners, line_sink complain)
        : on_(on), exports_(on), owners_(owners), complain_(std::move(complain)) {}

    struct place {
        std::string busid;
        std::uint16_t port = 0;
    };

    // Switches an enclosure on and exports it. All share one port: 0 is the one in use, or any
    // free one. Throws problem when it cannot be done.
    place begin(const std::string& enclosure, std::uint16_t port, moment now);

    // Ends it, switching the enclosure off. Throws problem when it is not exported.
    void end(const std::string& enclosure);

    // The port in use; nothing while nothing is exported.
    std::optional<std::uint16_t> port() const;

    // As usbip_server's.
    void watch(std::vector<pollfd>& watched) const;
    std::optional<moment> next_event() const;
    void serve(moment now);

private:
    void open(std::uint16_t port);
    void close_when_idle();

    desk& on_;
    usb_exports exports_;
    peer_owner& owners_;
    line_sink complain_;
    std::unique_ptr<usbip_server> server_; // while something is exported
};

} // namespace enclosure
