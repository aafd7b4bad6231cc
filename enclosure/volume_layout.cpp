#include "enclosure/volume_layout.h"

#include <algorithm>

namespace enclosure {

namespace {

// Disks whose bays were exchanged keep their order: their records tell it.
int first_of_joined(const array_record& on_port_0, const array_record& on_port_1) {
    return on_port_0.member == 1 && on_port_1.member == 0 ? 1 : 0;
}

int read_mirror_member(const port_views& views, volume_state state) {
    if (state == volume_state::degraded) {
        return views[0].is(array_kind::mirror) ? 0 : 1;
    }
    const array_record& other = *views[1].record;
    if (state == volume_state::copying) {
        return other.copy_source ? 1 : 0;
    }
    return state == volume_state::diverged && other.stamp > views[0].record->stamp ? 1 : 0;
}

int first_member(const port_views& views, const volume& shown) {
    switch (shown.kind) {
    case array_kind::none:
        return views[0].present ? 0 : 1;
    case array_kind::mirror:
        return read_mirror_member(views, shown.state);
    case array_kind::stripe:
    case array_kind::span:
        break;
    }
    return first_of_joined(*views[0].record, *views[1].record);
}

// The rows are as wide as two chunks; the last one is narrower when the members are no whole
// number of chunks, so that every sector of their areas has its place.
layout_piece stripe_piece(const volume_layout& layout, std::uint64_t lba, std::uint64_t limit) {
    const std::uint64_t member_sectors = layout.sectors / 2;
    const std::uint64_t row = lba / (2 * stripe_chunk) * stripe_chunk; // where it is on a member
    const std::uint64_t width = std::min(stripe_chunk, member_sectors - row);
    const std::uint64_t in_row = lba - 2 * row;
    const std::uint64_t offset = in_row % width;
    const int port = in_row < width ? layout.first : 1 - layout.first;
    return {port, row + offset, std::min(limit, width - offset)};
}

layout_piece span_piece(const volume_layout& layout, std::uint64_t lba, std::uint64_t limit) {
    if (lba < layout.first_area) {
        return {layout.first, lba, std::min(limit, layout.first_area - lba)};
    }
    return {1 - layout.first, lba - layout.first_area, limit};
}

} // namespace

volume_layout layout_of(const port_views& views, const volume& shown) {
    if (shown.sectors == 0) {
        return {};
    }
    const int first = first_member(views, shown);
    const std::uint64_t area = views[static_cast<std::size_t>(first)].data_area();
    return {shown.kind, shown.sectors, first, std::min(area, shown.sectors)};
}

layout_piece piece_at(const volume_layout& layout, std::uint64_t lba, std::uint64_t limit) {
    switch (layout.kind) {
    case array_kind::stripe:
        return stripe_piece(layout, lba, limit);
    case array_kind::span:
        return span_piece(layout, lba, limit);
    case array_kind::mirror:
    case array_kind::none:
        break;
    }
    return {layout.first, lba, limit};
}

} // namespace enclosure
