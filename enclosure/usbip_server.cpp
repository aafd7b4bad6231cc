#include "enclosure/usbip_server.h"

#include "enclosure/problem.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace enclosure {

namespace {

constexpr std::size_t most_clients = 72; // as many as enclosures, and some that only ask
constexpr int most_waiting_clients = 16;
constexpr moment time_to_recover = std::chrono::seconds(1);
constexpr moment time_between_strangers = std::chrono::milliseconds(50);
constexpr moment time_between_complaints = std::chrono::minutes(1); // of strangers
constexpr std::size_t read_at_once = 256U << 10;                    // bytes

sockaddr_in loopback(std::uint16_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

sockaddr_in own_address(const file_handle& socket) {
    sockaddr_in address{};
    socklen_t size = sizeof address;
    ::getsockname(socket.get(), reinterpret_cast<sockaddr*>(&address), &size);
    return address;
}

void set_option(const file_handle& socket, int level, int option) {
    const int on = 1;
    ::setsockopt(socket.get(), level, option, &on, sizeof on);
}

file_handle listen_on(std::uint16_t port) {
    file_handle socket(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    const sockaddr_in address = loopback(port);
    set_option(socket, SOL_SOCKET, SO_REUSEADDR);
    if (::bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(socket.get(), most_waiting_clients) != 0) {
        throw problem("cannot listen on port " + std::to_string(port) + ": " + reason() +
                      "; take another one with --port");
    }
    return socket;
}

// False: nobody is at the other end any more.
bool send(const file_handle& socket, usbip_session& session, moment now) {
    const byte_view output = session.output();
    if (output.empty()) {
        return true;
    }
    const ssize_t count =
        ::send(socket.get(), output.data(), output.size(), MSG_DONTWAIT | MSG_NOSIGNAL);
    if (count > 0) {
        session.sent(static_cast<std::size_t>(count), now);
    }
    return count >= 0 || errno == EAGAIN || errno == EINTR;
}

// USB/IP itself asks nobody who they are.
bool is_welcome(std::optional<uid_t> owner) {
    return owner && (*owner == 0 || *owner == ::geteuid());
}

} // namespace

usbip_server::usbip_server(usb_exports& exports, peer_owner& owners, std::uint16_t port,
                           line_sink complain)
    : exports_(exports),
      owners_(owners),
      complain_(std::move(complain)),
      buffer_(read_at_once),
      listener_(listen_on(port)) {}

std::uint16_t usbip_server::port() const {
    return ntohs(own_address(listener_).sin_port);
}

// Who comes meanwhile waits in the kernel's queue.
bool usbip_server::may_listen() const {
    return clients_.size() < most_clients && !listens_again_;
}

void usbip_server::watch(std::vector<pollfd>& watched) const {
    watched.push_back({may_listen() ? listener_.get() : -1, POLLIN, 0});
    for (const client& one : clients_) {
        int events = one.session.wants_input() ? POLLIN : 0;
        events |= one.session.output().empty() ? 0 : POLLOUT;
        watched.push_back({one.socket.get(), static_cast<short>(events), 0});
    }
}

std::optional<moment> usbip_server::next_event() const {
    std::optional<moment> next = listens_again_;
    for (const client& one : clients_) {
        const std::optional<moment> mine = one.session.next_event();
        if (mine && (!next || *mine < *next)) {
            next = mine;
        }
    }
    return next;
}

void usbip_server::serve(moment now) {
    if (listens_again_ && *listens_again_ <= now) {
        listens_again_.reset();
    }
    std::vector<pollfd> ready;
    watch(ready);
    if (::poll(ready.data(), ready.size(), 0) < 0) {
        return;
    }
    auto events = ready.begin();
    const bool somebody_came = (events++)->revents != 0;
    for (client& one : clients_) {
        go_on(one, (events++)->revents, now);
    }
    if (clients_.remove_if([](const client& one) { return one.lost || one.session.over(); }) > 0) {
        listens_again_.reset();
    }
    if (somebody_came) {
        admit(now);
    }
}

void usbip_server::go_on(client& with, short events, moment now) {
    usbip_session& session = with.session;
    if ((events & POLLIN) != 0) {
        with.lost = !receive(with, now);
    } else if ((events & (POLLHUP | POLLERR)) != 0) {
        with.lost = true;
    }
    session.advance(now);
    with.lost = !send(with.socket, session, now) || with.lost;
    if (session.over() && !session.complaint().empty()) {
        complain_("closed a USB/IP connection: its client " + session.complaint());
    }
}

// False: the other end has closed or gone.
bool usbip_server::receive(client& from, moment now) {
    const ssize_t got = ::recv(from.socket.get(), buffer_.data(), buffer_.size(), MSG_DONTWAIT);
    if (got > 0) {
        from.session.receive(byte_view(buffer_).first(static_cast<std::size_t>(got)), now);
    }
    return got > 0 || (got < 0 && (errno == EAGAIN || errno == EINTR));
}

void usbip_server::admit(moment now) {
    sockaddr_in peer{};
    socklen_t size = sizeof peer;
    file_handle connection(::accept4(listener_.get(), reinterpret_cast<sockaddr*>(&peer), &size,
                                     SOCK_NONBLOCK | SOCK_CLOEXEC));
    if (!connection) {
        pause(now);
        return;
    }
    complained_ = false;
    const std::optional<uid_t> owner = owners_.owner(peer, own_address(connection));
    if (!is_welcome(owner)) {
        turn_away(owner, now);
        return;
    }
    set_option(connection, IPPROTO_TCP, TCP_NODELAY);
    clients_.emplace_back(std::move(connection), exports_, now);
}

// Who could not be taken is still waiting: to be told of it again at once would be a busy loop.
void usbip_server::pause(moment now) {
    if (errno == EAGAIN || errno == EINTR || errno == ECONNABORTED) {
        return;
    }
    if (!complained_) {
        complain_("cannot take a USB/IP connection: " + reason() + "; trying again every second");
    }
    complained_ = true;
    listens_again_ = now + time_to_recover;
}

// Each one costs a look at the kernel's table and a line, so many could keep the service busy and
// fill the log.
void usbip_server::turn_away(std::optional<uid_t> owner, moment now) {
    listens_again_ = now + time_between_strangers;
    if (now < names_strangers_) {
        return;
    }
    names_strangers_ = now + time_between_complaints;
    complain_("closed a USB/IP connection: its client belongs to " +
              (owner ? "user " + std::to_string(*owner) : std::string("nobody who can be found")));
}

} // namespace enclosure
