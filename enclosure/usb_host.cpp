#include "enclosure/usb_host.h"

#include "enclosure/busid.h"
#include "enclosure/problem.h"

#include <algorithm>

namespace enclosure {

usb_host::place usb_host::begin(const std::string& enclosure, std::uint16_t port, moment now) {
    on_.check_export(enclosure);
    open(port);
    try {
        const std::uint32_t number = on_.begin_export(enclosure, now);
        return {busid_of(number), server_->port()};
    } catch (...) {
        close_when_idle();
        throw;
    }
}

void usb_host::end(const std::string& enclosure) {
    on_.end_export(enclosure);
    close_when_idle();
}

std::optional<std::uint16_t> usb_host::port() const {
    return server_ ? std::optional(server_->port()) : std::nullopt;
}

void usb_host::open(std::uint16_t port) {
    if (!server_) {
        server_ = std::make_unique<usbip_server>(exports_, owners_, port, complain_);
    } else if (port != 0 && port != server_->port()) {
        const std::string used = std::to_string(server_->port());
        throw problem("enclosures are exported on port " + used + " already; take --port " + used);
    }
}

void usb_host::close_when_idle() {
    const auto& all = on_.enclosures();
    if (std::none_of(all.begin(), all.end(),
                     [](const auto& entry) { return entry.second->export_number(); })) {
        server_.reset();
    }
}

void usb_host::watch(std::vector<pollfd>& watched) const {
    if (server_) {
        server_->watch(watched);
    }
}

std::optional<moment> usb_host::next_event() const {
    return server_ ? server_->next_event() : std::nullopt;
}

// An enclosure may have been unplugged meanwhile.
void usb_host::serve(moment now) {
    close_when_idle();
    if (server_) {
        server_->serve(now);
    }
}

} // namespace enclosure
