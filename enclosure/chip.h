// The bridge chip as a SCSI target.
#pragma once

#include "enclosure/bays.h"
#include "enclosure/fault_stack.h"
#include "enclosure/mirror_copy.h"
#include "enclosure/scsi.h"
#include "enclosure/vendor_commands.h"
#include "enclosure/volume.h"
#include "enclosure/volume_commands.h"
#include "enclosure/volume_io.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace enclosure {

// INQUIRY texts. Readers join vendor and product as they are, so the blank between them is the
// chip's to bring.
inline constexpr std::string_view inquiry_vendor = "Emulated";
std::string inquiry_product(const std::string& product);

// A copy as it is kept while its chip is away.
struct kept_copy {
    copy_progress progress;
    copy_pair between;
};

// A state machine: it has no thread and no clock of its own, and is used by one thread at a time.
class chip {
public:
    // `product` is at most 15 printable characters. `disks` and `path`, which leads to them,
    // outlive the chip.
    chip(bays& disks, fault_stack& path, std::string product);

    // Reads both disks' records, decides the volume and begins the copy they ask for. After the
    // desk itself was away, the copy of before goes on when it is still the one asked for; one
    // that has ended stays so as well when none is asked for any more.
    void power_on(moment now, const std::optional<kept_copy>& before = std::nullopt);

    // The copy stops.
    void power_off();

    // A disk was exchanged, taken out or put in: reads both disks' records anew. A copy stops;
    // it or another begins only at the next power-on.
    void disks_changed();

    // Carries out a command. Any bytes are safe: what is not understood is answered with a
    // check condition. At most `allocation` bytes come back.
    scsi_reply execute(byte_view cdb, byte_view data_out, std::uint32_t allocation);

    // True once after a warm boot command: the chip wants to be switched off and on.
    bool take_restart_request() { return std::exchange(restart_, false); }

    // Goes on copying. True: more is due at `now`.
    bool advance(moment now);

    // The copy for a later power_on, once what it says was copied is lasting; nothing when there
    // is none or its target cannot be flushed.
    std::optional<kept_copy> lasting_copy() const;

    // The disk that the latest copy has not filled: without its source it is no volume. Kept
    // while the power is off, and to be kept while the desk is away.
    std::optional<raw_identity> unfilled() const;
    void restore_unfilled(const std::optional<raw_identity>& disk) { unfilled_ = disk; }

    // The disks have been given other contents while the power was off.
    void forget_copy();

    mirror_copy& copy() { return copy_; }
    const mirror_copy& copy() const { return copy_; }

    // A mirror whose copy has ended, or has nothing to copy, is in order.
    volume presented() const;

private:
    scsi_reply dispatch(byte_view cdb, byte_view data_out);
    scsi_reply carry_out(byte_view cdb, byte_view data_out);
    static scsi_reply report_luns(byte_view cdb);
    scsi_reply inquiry(byte_view cdb) const;
    scsi_reply test_ready() const;
    scsi_reply request_sense(byte_view cdb) const;
    scsi_reply read_capacity_10() const;
    scsi_reply read_capacity_16(byte_view cdb) const;

    std::optional<scsi_reply> trouble_with(const block_range& range) const;
    scsi_reply read_blocks(byte_view cdb);
    scsi_reply write_blocks(byte_view cdb, byte_view data_out);
    scsi_reply verify_blocks(byte_view cdb);
    scsi_reply synchronize();

    scsi_reply vendor(byte_view cdb, byte_view data_out);
    scsi_reply read_sector(const vendor_command& command);
    scsi_reply write_sector(const vendor_command& command, byte_view data_out);
    bool is_mirror_record(int port, std::uint64_t lba, const sector_data& data) const;
    bool write_mirror_record(int port, std::uint64_t lba, sector_data& data);
    scsi_reply identify(const vendor_command& command);
    scsi_reply read_register(const vendor_command& command);
    scsi_reply rebuild_status(const vendor_command& command) const;
    scsi_reply warm_boot(const vendor_command& command);
    scsi_reply flush(const vendor_command& command);

    std::optional<sense_code> address_trouble(const vendor_command& command) const;
    std::optional<identify_block> identity_at(int port);
    bool answers(int port) const;
    port_view look_at(int port);
    void look_at_disks();
    void answer_old_mark();
    void settle_source();
    void settle_unfilled();
    bool serves_unfilled() const;
    bool goes_on(const kept_copy& before, const std::optional<copy_order>& order) const;

    bays& disks_;
    fault_stack& path_;
    std::string product_;
    mirror_copy copy_;
    copy_pair copied_pair_;                // of copy_
    std::optional<raw_identity> unfilled_; // as it was when copy_ was forgotten
    port_views views_;
    volume volume_;
    volume_io volume_io_;
    sense_code last_sense_ = sense::none;
    bool restart_ = false;
};

} // namespace enclosure
