// The chip's own commands.
#include "enclosure/chip.h"
#include "enclosure/numbers.h"

#include <algorithm>
#include <vector>

namespace enclosure {

scsi_reply chip::vendor(byte_view cdb, byte_view data_out) {
    const std::optional<vendor_command> command = decode_vendor(cdb);
    if (!command) {
        return refused(sense::invalid_field);
    }
    switch (command->action) {
    case vendor_action::read_sector:
        return read_sector(*command);
    case vendor_action::write_sector:
        return write_sector(*command, data_out);
    case vendor_action::identify:
        return identify(*command);
    case vendor_action::read_register:
        return read_register(*command);
    case vendor_action::rebuild_status:
        return rebuild_status(*command);
    case vendor_action::warm_boot:
        return warm_boot(*command);
    case vendor_action::flush:
        return flush(*command);
    }
    return refused(sense::invalid_field);
}

std::optional<sense_code> chip::address_trouble(const vendor_command& command) const {
    if (command.length != sector_size) {
        return sense::invalid_field;
    }
    if (!answers(command.port)) {
        return sense::no_medium;
    }
    const bool too_far = command.address >= disks_.at(command.port)->sectors() ||
                         (!command.lba48 && command.address >= sectors_28bit);
    return too_far ? std::optional(sense::lba_out_of_range) : std::nullopt;
}

scsi_reply chip::read_sector(const vendor_command& command) {
    if (const auto trouble = address_trouble(command)) {
        return refused(*trouble);
    }
    std::vector<std::uint8_t> data(sector_size);
    const bool done = path_.perform({io_kind::read, command.port, command.address, 1, data});
    return done ? answered(std::move(data)) : refused(sense::read_failed);
}

scsi_reply chip::write_sector(const vendor_command& command, byte_view data_out) {
    if (const auto trouble = address_trouble(command)) {
        return refused(*trouble);
    }
    if (data_out.size() != sector_size) {
        return refused(sense::invalid_field);
    }
    sector_data data{};
    std::copy(data_out.begin(), data_out.end(), data.begin());
    const bool done = is_mirror_record(command.port, command.address, data)
                          ? write_mirror_record(command.port, command.address, data)
                          : path_.perform({io_kind::write, command.port, command.address, 1, data});
    return done ? answered() : refused(sense::write_failed);
}

bool chip::is_mirror_record(int port, std::uint64_t lba, const sector_data& data) const {
    const std::optional<array_record> record = read_record(data);
    return record && record->kind == array_kind::mirror &&
           record_address(views_[static_cast<std::size_t>(port)].sectors) == lba;
}

// A host that has read the record before its member was written alone must not take the mark away.
bool chip::write_mirror_record(int port, std::uint64_t lba, sector_data& data) {
    sector_data former{};
    if (path_.perform({io_kind::read, port, lba, 1, former}) &&
        is_mirror_record(port, lba, former)) {
        keep_alone_mark(data, former);
    }
    volume_io_.record_written(port);
    return path_.perform({io_kind::write, port, lba, 1, data});
}

scsi_reply chip::identify(const vendor_command& command) {
    if (command.length != sector_size) {
        return refused(sense::invalid_field);
    }
    const std::optional<identify_block> block = identity_at(command.port);
    return block ? answered({block->begin(), block->end()}) : refused(sense::no_medium);
}

// The registers and IDENTIFY have one source, so that they never contradict each other.
scsi_reply chip::read_register(const vendor_command& command) {
    constexpr std::size_t widest = 4;
    const bool first = command.address == presence_register_0;
    if (command.length == 0 || command.length > widest ||
        (!first && command.address != presence_register_1)) {
        return refused(sense::invalid_field);
    }
    const std::optional<identify_block> block = identity_at(first ? 0 : 1);
    std::vector<std::uint8_t> data(command.length);
    data[0] = block && identify_counts(*block) ? 1 : 0;
    return answered(std::move(data));
}

scsi_reply chip::rebuild_status(const vendor_command& command) const {
    if (command.length != rebuild_status_size) {
        return refused(sense::invalid_field);
    }
    std::vector<std::uint8_t> data(rebuild_status_size);
    if (const auto& progress = copy_.progress()) {
        put_le(data.data(), progress->sectors - 1, 6);
        put_le(&data[6], progress->done == 0 ? 0 : progress->done - 1, 6);
    }
    return answered(std::move(data));
}

scsi_reply chip::warm_boot(const vendor_command& command) {
    if (command.length != 0) {
        return refused(sense::invalid_field);
    }
    restart_ = true;
    return answered();
}

scsi_reply chip::flush(const vendor_command& command) {
    if (command.length != 0) {
        return refused(sense::invalid_field);
    }
    if (!answers(command.port)) {
        return refused(sense::no_medium);
    }
    const bool done = path_.perform({io_kind::flush, command.port, 0, 0, {}});
    return done ? answered() : refused(sense::write_failed);
}

} // namespace enclosure
