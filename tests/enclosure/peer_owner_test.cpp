#include "enclosure/peer_owner.h"

#include "enclosure/file_handle.h"

#include "tests/enclosure/loopback.h"

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <unistd.h>

#include <iomanip>
#include <sstream>
#include <string>

namespace enclosure {
namespace {

constexpr const char* table =
    "  sl  local_address rem_address   st tx_queue rx_queue tr tm->when retrnsmt   uid  timeout "
    "inode\n"
    "   0: LOCAL:0CA8 00000000:0000 0A 00000000:00000000 00:00000000 00000000  1000        0 11 1\n"
    "   1: LOCAL:0CA8 LOCAL:D000 01 00000000:00000000 00:00000000 00000000  1000        0 12 1\n"
    "   2: LOCAL:D000 LOCAL:0CA8 01 00000000:00000000 00:00000000 00000000  1001        0 13 1\n"
    "   3: LOCAL:D001 LOCAL:0CA8 05 00000000:00000000 00:00000000 00000000     0        0 0 1\n"
    "   4: LOCAL:D002 LOCAL:0CA8 01 00000000:00000000 00:00000000 00000000     0        0 0 1\n"
    "   5: LOCAL:D003 LOCAL:0CA9 01 00000000:00000000 00:00000000 00000000  1002        0 14 1\n";

// The kernel prints addresses as this machine's numbers.
std::string native_table() {
    std::ostringstream local;
    local << std::uppercase << std::hex << std::setw(8) << std::setfill('0')
          << htonl(INADDR_LOOPBACK);
    std::string text = table;
    for (std::size_t at = 0; (at = text.find("LOCAL", at)) != std::string::npos;) {
        text.replace(at, 5, local.str());
    }
    return text;
}

std::optional<uid_t> owner_of(std::uint16_t client_port) {
    std::istringstream text(native_table());
    return owner_in(text, loopback(client_port), loopback(3240));
}

TEST(PeerOwner, IsFoundByBothAddresses) {
    EXPECT_EQ(owner_of(0xD000), 1001U);
}

TEST(PeerOwner, IsNobodyOnceTheProgramHasLetGo) {
    EXPECT_EQ(owner_of(0xD001), std::nullopt) << "the table says root of it";
    EXPECT_EQ(owner_of(0xD002), std::nullopt);
}

TEST(PeerOwner, IsNobodyForOtherConnections) {
    EXPECT_EQ(owner_of(0xD003), std::nullopt);
    EXPECT_EQ(owner_of(0xD004), std::nullopt);
}

TEST(PeerOwner, OfAConnectionOfOursIsUs) {
    const file_handle listener(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_in own = loopback(0);
    socklen_t size = sizeof own;
    ASSERT_EQ(::bind(listener.get(), reinterpret_cast<sockaddr*>(&own), size), 0);
    ASSERT_EQ(::listen(listener.get(), 1), 0);
    ::getsockname(listener.get(), reinterpret_cast<sockaddr*>(&own), &size);
    const file_handle client(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    ASSERT_EQ(::connect(client.get(), reinterpret_cast<sockaddr*>(&own), size), 0);
    sockaddr_in peer{};
    ::getsockname(client.get(), reinterpret_cast<sockaddr*>(&peer), &size);
    EXPECT_EQ(kernel_peer_owner().owner(peer, own), ::geteuid());
}

} // namespace
} // namespace enclosure
