#include "enclosure/scenario.h"

#include "enclosure/problem.h"

#include <algorithm>

namespace enclosure {

namespace {

constexpr std::string_view earlier = "20240229080000";
constexpr std::string_view later = "20240301093000";

// Sectors of both disks that the arrays leave out.
constexpr std::uint64_t stripe_reserve = 32;
constexpr std::uint64_t mirror_reserve = 16;
constexpr std::uint64_t span_reserve = 65568;

array_kind kind_of(scenario state) {
    switch (state) {
    case scenario::unconfigured:
        return array_kind::none;
    case scenario::raid0:
    case scenario::broken:
        return array_kind::stripe;
    case scenario::span:
        return array_kind::span;
    case scenario::raid1:
    case scenario::degraded:
    case scenario::diverged:
    case scenario::rebuild:
        break;
    }
    return array_kind::mirror;
}

std::uint64_t array_sectors(array_kind kind, std::uint64_t first, std::uint64_t second) {
    const std::uint64_t smaller = std::min(first, second);
    switch (kind) {
    case array_kind::stripe:
        return 2 * smaller - std::min(2 * smaller, stripe_reserve);
    case array_kind::mirror:
        return smaller - std::min(smaller, mirror_reserve);
    case array_kind::span:
        return first + second - std::min(first + second, span_reserve);
    case array_kind::none:
        break;
    }
    return 0;
}

void write_sector(disk& which, const sector_data& sector) {
    const std::optional<std::uint64_t> address = record_address(which.sectors());
    if (!which.answers()) {
        throw problem("disk '" + which.name() + "' does not answer (" + which.missing() +
                      "); put the file back and start the service again");
    }
    if (!address) {
        throw problem("disk '" + which.name() + "' is too small for an array; take a larger one");
    }
    if (!which.image().write(*address, sector)) {
        throw problem("disk '" + which.name() +
                      "' cannot be written; make room on the desk's file "
                      "system");
    }
}

} // namespace

std::optional<scenario> scenario_named(std::string_view name) {
    const auto* const found = std::find(scenario_names.begin(), scenario_names.end(), name);
    if (found == scenario_names.end()) {
        return std::nullopt;
    }
    return static_cast<scenario>(found - scenario_names.begin());
}

std::string_view name_of(scenario state) {
    return scenario_names[static_cast<std::size_t>(state)];
}

void erase_record(disk& which) {
    write_sector(which, {});
}

void write_records(scenario state, disk& first, disk& second) {
    const array_kind kind = kind_of(state);
    if (kind == array_kind::none) {
        erase_record(first);
        erase_record(second);
        return;
    }
    const std::uint64_t sectors = array_sectors(kind, first.sectors(), second.sectors());
    if (sectors == 0) {
        throw problem("disks '" + first.name() + "' and '" + second.name() +
                      "' are too small for an array; take larger ones");
    }
    const bool diverged = state == scenario::diverged;
    // The half that ran alone names nobody.
    const raw_identity beside_first = diverged ? raw_identity{} : identity_of(second.identity());
    const array_record of_first{
        kind, 0, state == scenario::rebuild, sectors, beside_first, stamp_of(later)};
    const array_record of_second{kind,
                                 1,
                                 false,
                                 sectors,
                                 identity_of(first.identity()),
                                 stamp_of(diverged ? earlier : later)};
    write_sector(first, write_record(of_first));
    write_sector(second, write_record(of_second));
}

} // namespace enclosure
