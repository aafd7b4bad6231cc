#include "enclosure/record_marks.h"

#include "enclosure/metadata.h"

namespace enclosure {

namespace {

bool change_record(disk_io& path, int port, std::uint64_t lba, void (*change)(sector_data&)) {
    sector_data sector{};
    if (!path.perform({io_kind::read, port, lba, 1, sector})) {
        return false;
    }
    const std::optional<array_record> record = read_record(sector);
    if (!record || record->kind != array_kind::mirror) {
        return false;
    }
    change(sector);
    return path.perform({io_kind::write, port, lba, 1, sector}) &&
           path.perform({io_kind::flush, port, 0, 0, {}});
}

} // namespace

bool set_alone_mark(disk_io& path, int port, std::uint64_t lba) {
    return change_record(path, port, lba, mark_alone);
}

bool clear_alone_mark(disk_io& path, int port, std::uint64_t lba) {
    return change_record(path, port, lba, unmark_alone);
}

bool set_source_mark(disk_io& path, int port, std::uint64_t lba) {
    return change_record(path, port, lba, mark_source);
}

} // namespace enclosure
