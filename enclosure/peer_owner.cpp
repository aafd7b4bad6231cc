#include "enclosure/peer_owner.h"

#include <arpa/inet.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

namespace enclosure {

namespace {

// As the table has it: the address as a number of this machine, the port as people say it.
std::string table_address(const sockaddr_in& address) {
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%08X:%04X",
                  static_cast<unsigned>(address.sin_addr.s_addr),
                  static_cast<unsigned>(ntohs(address.sin_port)));
    return text.data();
}

struct table_line {
    std::string local;
    std::string remote;
    std::string state;
    uid_t owner = 0;
    unsigned long inode = 0;
};

// False: the line is none of a connection, as the table's first one.
bool read_line(const std::string& text, table_line& line) {
    std::istringstream words(text);
    std::string number;
    std::string queues;
    std::string timer;
    std::string retries;
    std::string timeout;
    words >> number >> line.local >> line.remote >> line.state >> queues >> timer >> retries >>
        line.owner >> timeout >> line.inode;
    return !words.fail();
}

} // namespace

std::optional<uid_t> owner_in(std::istream& table, const sockaddr_in& peer,
                              const sockaddr_in& own) {
    const std::string established = "01";
    const std::string local = table_address(peer);
    const std::string remote = table_address(own);
    for (std::string text; std::getline(table, text);) {
        table_line line;
        if (read_line(text, line) && line.local == local && line.remote == remote) {
            const bool held = line.state == established && line.inode != 0;
            return held ? std::optional(line.owner) : std::nullopt;
        }
    }
    return std::nullopt;
}

std::optional<uid_t> kernel_peer_owner::owner(const sockaddr_in& peer, const sockaddr_in& own) {
    std::ifstream table("/proc/net/tcp");
    return owner_in(table, peer, own);
}

} // namespace enclosure
