// Whose program is at the other end of a connection within this machine.
#pragma once

#include <netinet/in.h>
#include <sys/types.h>

#include <istream>
#include <optional>

namespace enclosure {

// One thread at a time. Nothing when it cannot be said.
class peer_owner {
public:
    peer_owner() = default;
    virtual ~peer_owner() = default;
    peer_owner(const peer_owner&) = delete;
    peer_owner& operator=(const peer_owner&) = delete;

    // The user whose socket has the address `peer` and is connected to `own`.
    virtual std::optional<uid_t> owner(const sockaddr_in& peer, const sockaddr_in& own) = 0;
};

// The same from the kernel's table of connections, in the format of /proc/net/tcp. Only an
// established connection that a program still holds counts: of all others the table says root.
std::optional<uid_t> owner_in(std::istream& table, const sockaddr_in& peer, const sockaddr_in& own);

class kernel_peer_owner final : public peer_owner {
public:
    std::optional<uid_t> owner(const sockaddr_in& peer, const sockaddr_in& own) override;
};

} // namespace enclosure
