#include "enclosure/volume.h"

#include <algorithm>

namespace enclosure {

namespace {

constexpr std::uint64_t reserved_at_end = 16; // sectors of each disk

std::uint64_t smaller_area(const port_view& a, const port_view& b) {
    return std::min(a.data_area(), b.data_area());
}

bool in_array(const port_view& view) {
    return view.present && view.record && view.record->kind != array_kind::none;
}

bool names(const port_view& view, const port_view& partner) {
    return partner.present && view.record->partner == partner.identity;
}

std::uint64_t mirror_on(const port_view& member) {
    return std::min(member.record->sectors, member.data_area());
}

// The only marked member of two in a mirror.
std::optional<std::size_t> marked_member(const port_views& views) {
    if (!views[0].is(array_kind::mirror) || !views[1].is(array_kind::mirror) ||
        views[0].record->copy_source == views[1].record->copy_source) {
        return std::nullopt;
    }
    return views[0].record->copy_source ? 0 : 1;
}

// What is older never replaces what was written alone, so its mark counts no more.
std::optional<std::size_t> source_of_copy(const port_views& views) {
    const std::optional<std::size_t> marked = marked_member(views);
    return marked && !written_alone(*views[1 - *marked].record) ? marked : std::nullopt;
}

volume mirror_of_both(const port_views& views) {
    const auto& [a, b] = views;
    volume made{array_kind::mirror, volume_state::in_order, std::min(mirror_on(a), mirror_on(b))};
    if (source_of_copy(views)) {
        made.state = volume_state::copying;
    } else if (a.record->stamp != b.record->stamp) {
        made.state = volume_state::diverged;
        made.sectors = mirror_on(a.record->stamp > b.record->stamp ? a : b);
    }
    return made;
}

// Of a stripe or span. A stripe has as many sectors on the one disk as on the other.
std::uint64_t joined_sectors(const port_view& a, const port_view& b) {
    const std::uint64_t wanted = std::min(a.record->sectors, b.record->sectors);
    if (a.record->kind == array_kind::span) {
        return std::min(wanted, a.data_area() + b.data_area());
    }
    return std::min(wanted / 2, smaller_area(a, b)) * 2;
}

volume of_two_members(const port_views& views) {
    const auto& [a, b] = views;
    const array_kind kind = a.record->kind;
    if (kind != b.record->kind) {
        return {array_kind::none, volume_state::broken, 0};
    }
    if (kind == array_kind::mirror) {
        return mirror_of_both(views);
    }
    if (!names(a, b) || !names(b, a)) {
        return {kind, volume_state::broken, 0};
    }
    return {kind, volume_state::in_order, joined_sectors(a, b)};
}

volume of_one_member(const port_view& member) {
    const array_record& record = *member.record;
    if (record.kind == array_kind::mirror) {
        return {record.kind, volume_state::degraded, mirror_on(member)};
    }
    return {record.kind, volume_state::broken, 0};
}

volume of_plain_disks(const port_views& views) {
    for (const port_view& view : views) {
        if (view.present) {
            return {array_kind::none, volume_state::plain, view.sectors};
        }
    }
    return {};
}

} // namespace

std::uint64_t port_view::data_area() const {
    return sectors - std::min(sectors, reserved_at_end);
}

volume decide_volume(const port_views& views) {
    const bool first = in_array(views[0]);
    const bool second = in_array(views[1]);
    if (!first && !second) {
        return of_plain_disks(views);
    }
    volume made = first && second ? of_two_members(views) : of_one_member(views[first ? 0 : 1]);
    if (made.sectors == 0) {
        made.state = volume_state::broken;
    }
    return made;
}

std::optional<copy_order> decide_copy(const port_views& views) {
    const std::optional<std::size_t> source = source_of_copy(views);
    if (!source) {
        return std::nullopt;
    }
    const std::uint64_t area =
        std::min(views[*source].record->sectors, smaller_area(views[0], views[1]));
    if (area == 0) {
        return std::nullopt;
    }
    return copy_order{static_cast<int>(*source), area};
}

std::optional<int> target_written_alone(const port_views& views) {
    const std::optional<std::size_t> marked = marked_member(views);
    if (!marked || source_of_copy(views)) {
        return std::nullopt;
    }
    return static_cast<int>(1 - *marked);
}

copy_pair pair_of(const port_views& views) {
    copy_pair pair;
    for (std::size_t port = 0; port < views.size(); ++port) {
        if (in_array(views[port])) {
            pair.members[port] = {views[port].identity, views[port].record->stamp};
        }
    }
    return pair;
}

std::string_view name_of(array_kind kind) {
    switch (kind) {
    case array_kind::stripe:
        return "RAID 0";
    case array_kind::mirror:
        return "RAID 1";
    case array_kind::span:
        return "span";
    case array_kind::none:
        break;
    }
    return "none";
}

std::string_view name_of(volume_state state) {
    switch (state) {
    case volume_state::plain:
        return "plain";
    case volume_state::in_order:
        return "in order";
    case volume_state::copying:
        return "copying";
    case volume_state::degraded:
        return "degraded";
    case volume_state::diverged:
        return "diverged";
    case volume_state::broken:
        return "broken";
    case volume_state::no_disk:
        break;
    }
    return "no disk";
}

} // namespace enclosure
