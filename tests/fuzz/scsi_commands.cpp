// Any sequence of SCSI commands to the chip, on disks in any state.
#include "enclosure/chip.h"
#include "enclosure/numbers.h"
#include "enclosure/scenario.h"
#include "enclosure/vendor_commands.h"

#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/small_bays.h"
#include "tests/fuzz/target.h"

namespace {

using namespace enclosure;

class chip_run {
public:
    explicit chip_run(small_bays& disks)
        : disks_(disks), faults_(disks.both()), chip_(disks.both(), faults_, "Duo") {}

    void start(byte_source& source) {
        disks_.put(static_cast<scenario>(source.byte() % scenario_names.size()));
        if (source.flag()) {
            disks_.put_record(0, source.block<sector_size>());
        }
        chip_.power_on(now_);
    }

    void step(byte_source& source) {
        switch (source.byte() % 8) {
        case 0:
            now_ += std::chrono::milliseconds(source.byte() % 16);
            chip_.advance(now_);
            break;
        case 1:
            chip_.power_off();
            chip_.power_on(now_);
            break;
        case 2:
            chip_.disks_changed();
            break;
        default:
            command(source);
        }
        check_volume();
    }

private:
    void command(byte_source& source) {
        const std::vector<std::uint8_t> cdb = source.bytes(source.byte() % 20);
        const auto allocation = static_cast<std::uint32_t>(source.number(2));
        std::vector<std::uint8_t> out = source.bytes(source.byte());
        out.resize(source.byte() % 5 * sector_size + out.size());
        const small_bays::records before = disks_.both_records();
        const volume shown = chip_.presented();
        const scsi_reply reply = chip_.execute(cdb, out, allocation);
        require(reply.data_in.size() <= allocation, "no more comes back than was asked for");
        require(reply.sense.size() == (reply.status == scsi_status::good ? 0 : sense_size),
                "a refusal says why, and nothing else does");
        const bool own = !cdb.empty() && cdb[0] == vendor_opcode;
        const bool in_array =
            shown.kind != array_kind::none && shown.state != volume_state::degraded;
        require(own || !in_array || disks_.both_records() == before,
                "no command of the volume changes an array's records");
    }

    void check_volume() const {
        require(chip_.presented().sectors <= 2 * small_bays::sectors, "a volume fits its disks");
        if (const auto& progress = chip_.copy().progress()) {
            require(progress->done <= progress->sectors &&
                        progress->sectors <= small_bays::sectors - 16,
                    "a copy stays within what it may copy");
        }
        disks_.check_sizes();
    }

    small_bays& disks_;
    fault_stack faults_;
    chip chip_;
    moment now_{0};
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static small_bays disks;
    byte_source source(data, size);
    chip_run run(disks);
    run.start(source);
    for (int steps = 0; steps < 64 && !source.empty(); ++steps) {
        run.step(source);
    }
    return 0;
}
