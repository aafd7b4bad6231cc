// The bulk-only transport between any host and any target.
#include "enclosure/bulk_only.h"

#include "tests/enclosure/usb_builders.h"
#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/target.h"

namespace {

using namespace enclosure;
using usb_builders::bytes;

// Answers what the input says.
class any_target final : public usb::scsi_target {
public:
    explicit any_target(byte_source& source) : source_(source) {}

    scsi_reply execute(byte_view cdb, byte_view data_out, std::uint32_t allocation) override {
        require(!cdb.empty() && cdb.size() <= longest_cdb, "a command has 1 to 16 bytes");
        require(data_out.size() <= usb::most_command_data && allocation <= usb::most_command_data,
                "the data of a command is limited");
        scsi_reply reply = source_.flag() ? answered(source_.bytes(source_.byte()))
                                          : refused({source_.byte(), source_.byte(), 0});
        reply.data_in.resize(std::min<std::size_t>(reply.data_in.size(), allocation));
        reply.delay = std::chrono::milliseconds(source_.flag() ? source_.byte() : 0);
        reply.unanswered = source_.byte() == 1;
        return reply;
    }

private:
    byte_source& source_;
};

class host {
public:
    explicit host(byte_source& source) : source_(source), target_(source), storage_(target_) {}

    void step() {
        switch (source_.byte() % 6) {
        case 0:
            send(source_.bytes(source_.byte()));
            break;
        case 1:
        case 2:
            send(usb_builders::wrapped(source_.byte(),
                                       static_cast<std::uint32_t>(source_.number(3)),
                                       source_.flag(), source_.bytes(source_.byte() % 16 + 1)));
            break;
        case 3:
            receive(source_.number(2));
            break;
        case 4:
            now_ += std::chrono::milliseconds(source_.byte());
            storage_.advance(now_);
            break;
        default:
            storage_.clear_halt(source_.flag() ? usb::pipe::in : usb::pipe::out);
        }
    }

    // The class's way out of any trouble.
    void recover() {
        storage_.reset();
        storage_.clear_halt(usb::pipe::in);
        storage_.clear_halt(usb::pipe::out);
        const auto taken =
            storage_.take(usb_builders::wrapped(1, 0, false, {0, 0, 0, 0, 0, 0}), now_);
        require(taken && !taken->stalled && taken->taken == usb::command_wrapper_size,
                "after a reset the device takes a command");
    }

private:
    void send(const bytes& data) {
        const bool halted = storage_.halted(usb::pipe::out);
        if (const auto result = storage_.take(data, now_)) {
            require(result->taken <= data.size(), "no more is taken than was sent");
            require(!halted || result->stalled, "a halted pipe stalls");
            require(!result->stalled || storage_.halted(usb::pipe::out),
                    "a stalled pipe is halted");
        }
    }

    void receive(std::size_t room) {
        const bool halted = storage_.halted(usb::pipe::in);
        if (const auto result = storage_.give(room, now_)) {
            require(result->sent.size() <= room, "no more is sent than there is room for");
            require(!halted || result->stalled, "a halted pipe stalls");
            require(!result->stalled || storage_.halted(usb::pipe::in), "a stalled pipe is halted");
        }
    }

    byte_source& source_;
    any_target target_;
    usb::bulk_only storage_;
    moment now_{0};
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    byte_source source(data, size);
    host one(source);
    for (int steps = 0; steps < 64 && !source.empty(); ++steps) {
        one.step();
    }
    one.recover();
    return 0;
}
