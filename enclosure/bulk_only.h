// USB's bulk-only transport, the device's side.
#pragma once

#include "enclosure/command_wrapper.h"
#include "enclosure/scsi.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace enclosure::usb {

// Data of one command, either way.
inline constexpr std::uint32_t most_command_data = 1 << 20; // bytes

// What carries out the commands.
class scsi_target {
public:
    scsi_target() = default;
    virtual ~scsi_target() = default;
    scsi_target(const scsi_target&) = delete;
    scsi_target& operator=(const scsi_target&) = delete;

    virtual scsi_reply execute(byte_view cdb, byte_view data_out, std::uint32_t allocation) = 0;
};

// How many bytes a command takes from the host, by its own words; 0 for all that take none, and for
// what is no whole command. Any thread, any bytes.
std::uint64_t outgoing_bytes(byte_view cdb);

enum class pipe { in, out };

// What became of one transfer of the host on a pipe.
struct pipe_result {
    bool stalled = false;
    std::size_t taken = 0;          // out: bytes that the device took
    std::vector<std::uint8_t> sent; // in
};

// A state machine without a clock of its own; one thread at a time. Any bytes are safe. Where
// host and device disagree about the data, the device stalls the pipe that the host uses, and
// says the rest in its status.
class bulk_only {
public:
    // `target` outlives it.
    explicit bulk_only(scsi_target& target) : target_(target) {}

    // A transfer of the host's; nothing: the device is not ready for it, ask again later.
    std::optional<pipe_result> take(byte_view data, moment now);
    std::optional<pipe_result> give(std::size_t room, moment now);

    // Lets time pass; take() and give() do so too.
    void advance(moment now);

    // When an answer that takes time will be there.
    std::optional<moment> due() const;

    // The host has still to fetch something that is ready.
    bool has_answer() const { return phase_ == phase::data_in || phase_ == phase::status; }

    bool halted(pipe which) const { return which == pipe::in ? in_halted_ : out_halted_; }
    void halt(pipe which);

    // Of no effect after a meaningless command, until reset().
    void clear_halt(pipe which);

    // The class's own reset: waits for a command; halts stay.
    void reset();

    // As after the choice of a configuration: no halts either.
    void begin_anew();

private:
    enum class phase { command, data_out, working, data_in, status, broken };

    bool& halt_of(pipe which) { return which == pipe::in ? in_halted_ : out_halted_; }
    void take_command(byte_view data, moment now);
    pipe_result take_data(byte_view data, moment now);
    pipe_result send_data(std::size_t room);
    pipe_result send_status(std::size_t room);
    void execute(moment now);
    void conclude();
    void conclude_out();
    void conclude_in();
    void disagree();
    void break_off();

    scsi_target& target_;
    phase phase_ = phase::command;
    bool in_halted_ = false;
    bool out_halted_ = false;
    command_wrapper command_;
    command_status status_ = command_status::passed;
    std::uint32_t moved_ = 0;        // bytes of the command's data
    std::uint32_t awaited_ = 0;      // bytes that the command takes
    std::vector<std::uint8_t> data_; // taken, or to be sent
    scsi_reply reply_;               // while working
    std::optional<moment> ready_at_; // while working; nothing: never
};

} // namespace enclosure::usb
