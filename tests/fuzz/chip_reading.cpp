// What the chip makes of two disks with any sizes, identities and records: the volume, the copy,
// and where each sector of the volume lies.
#include "enclosure/volume.h"
#include "enclosure/volume_layout.h"

#include "tests/fuzz/byte_source.h"
#include "tests/fuzz/check.h"
#include "tests/fuzz/target.h"

#include <algorithm>

namespace {

using namespace enclosure;

port_view view_from(byte_source& source) {
    port_view view;
    view.present = source.flag();
    view.sectors = source.number(8);
    view.identity = {source.block<20>(), source.block<40>()};
    view.record = read_record(source.block<sector_size>());
    return view;
}

// Random records name nobody who is there.
void introduce(port_views& views, std::uint8_t how) {
    for (std::size_t port = 0; port < views.size(); ++port) {
        if ((how >> port & 1) != 0 && views[port].record) {
            views[port].record->partner = views[1 - port].identity;
        }
    }
}

std::uint64_t usable(const port_view& view, array_kind kind) {
    return kind == array_kind::none ? view.sectors : view.data_area();
}

// Areas whose sum is beyond 64 bits count, too.
bool fits(const volume& shown, std::uint64_t first, std::uint64_t second) {
    switch (shown.kind) {
    case array_kind::stripe:
        return shown.sectors / 2 <= std::min(first, second);
    case array_kind::span:
        return shown.sectors <= first || shown.sectors - first <= second;
    case array_kind::mirror:
    case array_kind::none:
        break;
    }
    return shown.sectors <= std::max(first, second);
}

void check_volume(const port_views& views, const volume& shown) {
    const bool anyone = views[0].present || views[1].present;
    require(anyone == (shown.state != volume_state::no_disk),
            "there is a state when there is a disk");
    const std::uint64_t first = views[0].present ? usable(views[0], shown.kind) : 0;
    const std::uint64_t second = views[1].present ? usable(views[1], shown.kind) : 0;
    require(fits(shown, first, second), "a volume is no larger than what its disks hold");
    if (shown.state != volume_state::plain && shown.state != volume_state::no_disk) {
        const port_views turned{views[1], views[0]};
        require(decide_volume(turned) == shown, "an array does not depend on the bays");
    }
}

void check_copy(const port_views& views) {
    const auto order = decide_copy(views);
    if (!order) {
        return;
    }
    const auto source = static_cast<std::size_t>(order->source);
    require(source < views.size() && views[source].record->copy_source &&
                !views[1 - source].record->copy_source,
            "a copy goes from the only marked member to the other");
    require(order->sectors > 0 && order->sectors <= views[0].data_area() &&
                order->sectors <= views[1].data_area(),
            "a copy leaves the last 16 sectors of both disks alone");
    require(decide_volume(views).kind == array_kind::mirror, "only a mirror is copied");
}

layout_piece check_piece(const port_views& views, const volume_layout& layout, std::uint64_t lba,
                         std::uint64_t limit) {
    const layout_piece piece = piece_at(layout, lba, limit);
    require(piece.port == 0 || piece.port == 1, "a piece lies on a disk");
    const port_view& view = views[static_cast<std::size_t>(piece.port)];
    const std::uint64_t room = usable(view, layout.kind);
    require(view.present, "a piece lies on a disk that is there");
    require(piece.count > 0 && piece.count <= limit, "a piece is what was asked for, or less");
    require(piece.lba < room && piece.count <= room - piece.lba,
            "a piece lies within what its disk has for it");
    return piece;
}

bool same_place(const layout_piece& a, const layout_piece& b) {
    return a.port == b.port && a.lba == b.lba;
}

void check_layout(const port_views& views, const volume& shown, byte_source& source) {
    const volume_layout layout = layout_of(views, shown);
    require(layout.sectors == shown.sectors, "the whole volume is laid out");
    for (int probe = 0; probe < 4 && shown.sectors != 0; ++probe) {
        const std::uint64_t lba = source.number(8) % shown.sectors;
        const std::uint64_t other = source.number(8) % shown.sectors;
        const std::uint64_t limit = std::min(1 + source.number(2), shown.sectors - lba);
        const layout_piece piece = check_piece(views, layout, lba, limit);
        const layout_piece last = check_piece(views, layout, lba + piece.count - 1, 1);
        require(last.port == piece.port && last.lba == piece.lba + piece.count - 1,
                "the sectors of a piece lie together");
        require(other == lba || !same_place(check_piece(views, layout, other, 1), piece),
                "two sectors of the volume have two places");
    }
}

void check_record(const port_view& view) {
    if (view.record) {
        require(read_record(write_record(*view.record)) == view.record,
                "a record that was written is read as it was");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    byte_source source(data, size);
    const std::uint8_t introduced = source.byte();
    port_views views{view_from(source), view_from(source)};
    introduce(views, introduced);
    const volume shown = decide_volume(views);
    check_volume(views, shown);
    check_copy(views);
    check_layout(views, shown, source);
    check_record(views[0]);
    check_record(views[1]);
    return 0;
}
