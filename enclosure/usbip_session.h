// What one client of USB/IP says and is told.
#pragma once

#include "enclosure/units.h"
#include "enclosure/usb_exports.h"
#include "enclosure/usbip_wire.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace enclosure {

class imported_device;

// Bytes in, bytes out: no socket, no thread, no clock of its own. One thread at a time. Any bytes
// are safe; what breaks the protocol ends the session.
class usbip_session {
public:
    // `exports` outlives it.
    usbip_session(usb_exports& exports, moment now);
    ~usbip_session();
    usbip_session(const usbip_session&) = delete;
    usbip_session& operator=(const usbip_session&) = delete;

    // While wants_input() only.
    void receive(byte_view data, moment now);

    // Answers what has become due; ends when the device has left.
    void advance(moment now);

    // False while the client is slow to fetch what it has been sent.
    bool wants_input() const;

    // What is to be sent; the first `count` bytes of it have been.
    byte_view output() const { return output_; }
    void sent(std::size_t count, moment now);

    // The connection is to be closed.
    bool over() const;

    // Why, in one line for a person; empty when nothing was wrong.
    const std::string& complaint() const { return complaint_; }

    // When advance() is next needed; nothing while only the client can go on.
    std::optional<moment> next_event() const;

private:
    enum class stage { greeting, waiting, imported, leaving, ending };

    byte_view unread() const { return byte_view(input_).subspan(read_); }
    bool read_one(moment now);
    bool read_request(moment now);
    bool read_command();
    void import(moment now);
    void submit(const usbip::command& got, byte_view data);
    void unlink(const usbip::command& got);
    const char* trouble_in(const usbip::command& got) const;
    bool has_room() const;
    void answer(moment now);
    void go_on(moment now);
    void look_after_device(moment now);
    void look_at_clock(moment now);
    void send(const usbip::bytes& what);
    void end_with(const usbip::bytes& last, moment now);
    void break_off(const std::string& why);

    usb_exports& exports_;
    stage stage_ = stage::greeting;
    usbip::bytes input_;
    std::size_t read_ = 0; // bytes of input_, while going on
    usbip::bytes output_;
    std::string complaint_;
    std::string busid_; // asked for
    std::unique_ptr<imported_device> link_;
    std::optional<moment> limit_; // for what the client still has to do, or what it waits for
};

} // namespace enclosure
