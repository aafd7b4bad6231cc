#include "enclosure/volume_io.h"

#include "enclosure/record_marks.h"

namespace enclosure {

namespace {

// The bytes of `count` sectors, `at` sectors into the data; nothing of no data.
byte_room part_of(byte_room data, std::uint64_t at, std::uint64_t count) {
    return data.empty() ? data : data.subspan(at * sector_size, count * sector_size);
}

} // namespace

void volume_io::present(const port_views& views, const volume& shown) {
    layout_ = layout_of(views, shown);
    state_ = shown.state;
    for (std::size_t port = 0; port < views.size(); ++port) {
        records_[port] = record_address(views[port].sectors);
    }
    marked_ = shown.state == volume_state::diverged;
}

void volume_io::record_written(int port) {
    if (port == layout_.first) {
        marked_ = false;
    }
}

bool volume_io::read(std::uint64_t lba, std::uint64_t count, byte_room data) {
    std::uint64_t done = 0;
    while (done < count) {
        const layout_piece piece = piece_at(layout_, lba + done, count - done);
        if (!read_piece(piece, part_of(data, done, piece.count))) {
            return false;
        }
        done += piece.count;
    }
    return true;
}

bool volume_io::read_piece(const layout_piece& piece, byte_room data) {
    return path_.perform({io_kind::read, piece.port, piece.lba, piece.count, data}) ||
           (other_has(piece) &&
            path_.perform({io_kind::read, 1 - piece.port, piece.lba, piece.count, data}));
}

bool volume_io::other_has(const layout_piece& piece) const {
    if (layout_.kind != array_kind::mirror) {
        return false;
    }
    return state_ == volume_state::in_order ||
           (state_ == volume_state::copying && piece.lba + piece.count <= copy_.copied());
}

written volume_io::write(std::uint64_t lba, byte_room data) {
    if (layout_.kind != array_kind::mirror) {
        return write_pieces(lba, data) ? written::done : written::failed;
    }
    if (state_ == volume_state::copying && copy_.unfinished()) {
        return write_while_copying(lba, data);
    }
    if (state_ == volume_state::copying || state_ == volume_state::in_order) {
        return write_both(lba, data);
    }
    if (!marked_) {
        marked_ = mark_alone(layout_.first);
        if (!marked_) {
            return written::failed;
        }
    }
    return write_member(layout_.first, lba, data) ? written::done : written::failed;
}

bool volume_io::write_pieces(std::uint64_t lba, byte_room data) {
    const std::uint64_t count = data.size() / sector_size;
    std::uint64_t done = 0;
    while (done < count) {
        const layout_piece piece = piece_at(layout_, lba + done, count - done);
        if (!write_member(piece.port, piece.lba, part_of(data, done, piece.count))) {
            return false;
        }
        done += piece.count;
    }
    return true;
}

// What could not be written alike on both is copied once more, so the target need not be told
// apart from any other that has not been reached yet.
written volume_io::write_while_copying(std::uint64_t lba, byte_room data) {
    const bool on_source = write_member(layout_.first, lba, data);
    if (!on_source || !write_member(1 - layout_.first, lba, data)) {
        copy_.go_back_to(lba);
    }
    return on_source ? written::done : written::failed;
}

written volume_io::write_both(std::uint64_t lba, byte_room data) {
    const bool on_first = write_member(layout_.first, lba, data);
    const bool on_other = write_member(1 - layout_.first, lba, data);
    if (on_first && on_other) {
        return written::done;
    }
    if (!on_first && !on_other) {
        return written::failed;
    }
    return mark_alone(on_first ? layout_.first : 1 - layout_.first) ? written::by_one_member
                                                                    : written::failed;
}

bool volume_io::write_member(int port, std::uint64_t lba, byte_room data) {
    return path_.perform({io_kind::write, port, lba, data.size() / sector_size, data});
}

// Not made where the host has taken the record away: that is another array, or none, from the next
// start on.
bool volume_io::mark_alone(int port) {
    const std::optional<std::uint64_t>& address = records_[static_cast<std::size_t>(port)];
    return address && set_alone_mark(path_, port, *address);
}

} // namespace enclosure
