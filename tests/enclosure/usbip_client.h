// A client of USB/IP over a real socket. One thread.
#pragma once

#include "enclosure/file_handle.h"

#include "tests/enclosure/loopback.h"
#include "tests/enclosure/usb_builders.h"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <functional>
#include <stdexcept>

inline constexpr int client_patience = 30'000; // ms

class usbip_client {
public:
    // Waits until the socket named can be read, or something else has gone on meanwhile.
    using waiting = std::function<void(pollfd&)>;

    explicit usbip_client(
        std::uint16_t port, waiting wait = [](pollfd& one) { ::poll(&one, 1, client_patience); })
        : wait_(std::move(wait)), socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        const sockaddr_in there = loopback(port);
        if (::connect(socket_.get(), reinterpret_cast<const sockaddr*>(&there), sizeof there) !=
            0) {
            throw std::runtime_error("nobody listens");
        }
    }

    void say(const usb_builders::bytes& packet) {
        ::send(socket_.get(), packet.data(), packet.size(), MSG_NOSIGNAL);
    }

    // The next `count` bytes, or fewer when the connection ends before.
    usb_builders::bytes hear(std::size_t count) {
        usb_builders::bytes heard;
        while (heard.size() < count && hear_more(heard, count - heard.size())) {
        }
        return heard;
    }

    usb_builders::bytes ask(const usb_builders::bytes& packet, std::size_t count) {
        say(packet);
        return hear(count);
    }

    // Waits for the end of the connection; false when something else came.
    bool ends() { return hear(1).empty(); }

private:
    bool hear_more(usb_builders::bytes& heard, std::size_t most) {
        const auto deadline =
            std::chrono::steady_clock::now() + std::chrono::milliseconds(client_patience);
        pollfd one{socket_.get(), POLLIN, 0};
        while (one.revents == 0) {
            if (std::chrono::steady_clock::now() > deadline) {
                throw std::runtime_error("no answer in half a minute");
            }
            wait_(one);
        }
        std::array<std::uint8_t, 65536> part{};
        const ssize_t got = ::recv(socket_.get(), part.data(), std::min(most, part.size()), 0);
        if (got > 0) {
            heard.insert(heard.end(), part.begin(), part.begin() + got);
        }
        return got > 0;
    }

    waiting wait_;
    enclosure::file_handle socket_;
};
