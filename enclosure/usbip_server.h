// The socket that clients of USB/IP come to.
#pragma once

#include "enclosure/file_handle.h"
#include "enclosure/peer_owner.h"
#include "enclosure/usbip_session.h"

#include <poll.h>

#include <cstdint>
#include <functional>
#include <list>
#include <optional>
#include <string>
#include <vector>

namespace enclosure {

// Takes one line for a person.
using line_sink = std::function<void(const std::string&)>;

// Listens within this machine only, and serves only programs of its own user and root. Never
// blocks: its caller waits for what watch() names. One thread.
class usbip_server {
public:
    // Port 0 is any free one. `exports` and `owners` outlive it. Throws problem when the port
    // cannot be had.
    usbip_server(usb_exports& exports, peer_owner& owners, std::uint16_t port, line_sink complain);

    std::uint16_t port() const;

    // Adds what to wait for. While nobody can be taken for want of files or memory, that is not
    // who comes: it is tried again when a client has gone, and every second. Nor is it for 50 ms
    // after somebody has been turned away.
    void watch(std::vector<pollfd>& watched) const;

    // When serve() is next needed though nothing came; nothing while no time is awaited.
    std::optional<moment> next_event() const;

    // Goes on with all that can.
    void serve(moment now);

    std::size_t clients() const { return clients_.size(); }

private:
    struct client {
        client(file_handle connection, usb_exports& exports, moment now)
            : socket(std::move(connection)), session(exports, now) {}

        file_handle socket;
        usbip_session session;
        bool lost = false; // nobody is at the other end any more
    };

    bool may_listen() const;
    void admit(moment now);
    void pause(moment now);
    void turn_away(std::optional<uid_t> owner, moment now);
    void go_on(client& with, short events, moment now);
    bool receive(client& from, moment now);

    usb_exports& exports_;
    peer_owner& owners_;
    line_sink complain_;
    std::vector<std::uint8_t> buffer_; // for what is being read
    std::list<client> clients_;
    std::optional<moment> listens_again_; // after somebody could not be taken, or was turned away
    bool complained_ = false;             // of the former
    moment names_strangers_{0};           // from then on
    file_handle listener_;                // the first to go
};

} // namespace enclosure
