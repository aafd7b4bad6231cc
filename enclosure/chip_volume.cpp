// The commands that read and write the volume.
#include "enclosure/chip.h"

#include <vector>

namespace enclosure {

std::optional<scsi_reply> chip::trouble_with(const block_range& range) const {
    scsi_reply ready = test_ready();
    if (ready.status != scsi_status::good) {
        return ready;
    }
    if (range.lba > volume_.sectors || range.count > volume_.sectors - range.lba) {
        return refused(sense::lba_out_of_range);
    }
    return std::nullopt;
}

scsi_reply chip::read_blocks(byte_view cdb) {
    const block_range range = range_in(cdb);
    if (auto trouble = trouble_with(range)) {
        return *trouble;
    }
    if (asks_for_protection(cdb) || range.count > most_sectors_at_once) {
        return refused(sense::invalid_field);
    }
    std::vector<std::uint8_t> data(range.count * sector_size);
    const bool done = volume_io_.read(range.lba, range.count, data);
    return done ? answered(std::move(data)) : refused(sense::read_failed);
}

scsi_reply chip::write_blocks(byte_view cdb, byte_view data_out) {
    const block_range range = range_in(cdb);
    if (auto trouble = trouble_with(range)) {
        return *trouble;
    }
    if (asks_for_protection(cdb) || range.count > most_sectors_at_once ||
        data_out.size() < range.count * sector_size) {
        return refused(sense::invalid_field);
    }
    if (range.count == 0) {
        return answered();
    }
    const byte_view wanted = data_out.first(range.count * sector_size);
    std::vector<std::uint8_t> data(wanted.begin(), wanted.end());
    const written outcome = volume_io_.write(range.lba, data);
    if (outcome == written::failed) {
        return refused(sense::write_failed);
    }
    if (outcome == written::by_one_member) {
        disks_changed();
    }
    return forces_unit_access(cdb) ? synchronize() : answered();
}

scsi_reply chip::verify_blocks(byte_view cdb) {
    const block_range range = range_in(cdb);
    if (auto trouble = trouble_with(range)) {
        return *trouble;
    }
    if (asks_for_protection(cdb) || compares_bytes(cdb)) {
        return refused(sense::invalid_field);
    }
    const bool done = volume_io_.read(range.lba, range.count, {});
    return done ? answered() : refused(sense::read_failed);
}

scsi_reply chip::synchronize() {
    bool done = true;
    for (int port = 0; port < ports; ++port) {
        done = (!answers(port) || path_.perform({io_kind::flush, port, 0, 0, {}})) && done;
    }
    return done ? answered({}) : refused(sense::write_failed);
}

} // namespace enclosure
