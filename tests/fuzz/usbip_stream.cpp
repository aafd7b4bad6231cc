// What a client of USB/IP sends, in any pieces and at any moments.
#include "enclosure/usbip_session.h"

#include "tests/enclosure/exported_desk.h"
#include "tests/enclosure/usb_builders.h"
#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/target.h"

#include <algorithm>

namespace {

using usb_builders::bytes;

usb_builders::submission transfer_from(byte_source& source) {
    usb_builders::submission what;
    what.number = source.byte();
    what.way = source.byte() & 1;
    what.endpoint = source.byte() % 4;
    what.length = static_cast<std::uint32_t>(source.number(3));
    what.setup = source.bytes(8);
    what.setup.resize(8);
    if (what.way == 0) {
        what.length &= 0xFF;
        what.data = source.bytes(what.length);
    }
    return what;
}

bytes command_from(byte_source& source) {
    const std::uint8_t number = source.byte();
    const auto length = static_cast<std::uint32_t>(source.number(2));
    const bool in = source.flag();
    return usb_builders::bulk_out(
        number, usb_builders::wrapped(number, length, in, source.bytes(source.byte() % 16 + 1)));
}

bytes packet_from(byte_source& source) {
    switch (source.byte() % 6) {
    case 0:
        return usb_builders::import_request(source.flag() ? "1-1" : source.text().substr(0, 32));
    case 1:
        return usb_builders::submit(transfer_from(source));
    case 2:
        return command_from(source);
    case 3:
        return usb_builders::bulk_in(source.byte(), static_cast<std::uint32_t>(source.number(2)));
    case 4:
        return usb_builders::unlink(source.byte(), source.byte());
    default:
        return source.bytes(source.byte());
    }
}

class client {
public:
    explicit client(exported_desk& with) : with_(with), session_(with.exports, with.now) {}

    void step(byte_source& source) {
        switch (source.byte() % 4) {
        case 0:
            with_.now += std::chrono::milliseconds(source.number(2));
            with_.on.advance(with_.now);
            session_.advance(with_.now);
            break;
        case 1:
            fetch(source.number(2));
            break;
        default:
            send(packet_from(source), source.byte());
        }
        check();
    }

    bool over() const { return session_.over(); }

private:
    void send(const bytes& packet, std::size_t piece) {
        for (std::size_t at = 0; at < packet.size() && session_.wants_input(); at += piece + 1) {
            session_.receive(usb_builders::part_of(packet, at, piece + 1), with_.now);
        }
    }

    void fetch(std::size_t most) {
        session_.sent(std::min(most, session_.output().size()), with_.now);
    }

    void check() const {
        constexpr std::size_t most_output = 3U << 20;
        require(session_.output().size() <= most_output, "what waits for a client is limited");
        require(!session_.over() || session_.output().empty(), "all is sent before the end");
        const std::string& complaint = session_.complaint();
        require(std::all_of(complaint.begin(), complaint.end(),
                            [](char c) { return c >= ' ' && c <= '~'; }),
                "a complaint is one line of text");
    }

    exported_desk& with_;
    enclosure::usbip_session session_;
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    exported_desk with;
    byte_source source(data, size);
    {
        client one(with);
        for (int steps = 0; steps < 64 && !source.empty() && !one.over(); ++steps) {
            one.step(source);
        }
    }
    with.on.advance(with.now); // it may have been asked to restart, and comes back
    with.on.advance(with.now + std::chrono::minutes(2));
    require(with.exports.devices().size() == 1, "a client that left has given the device back");
    return 0;
}
