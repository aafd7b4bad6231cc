// This machine's own address.
#pragma once

#include <netinet/in.h>

#include <cstdint>

// For a socket; port 0 stands for any that is free.
inline sockaddr_in loopback(std::uint16_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}
