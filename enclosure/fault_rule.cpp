#include "enclosure/fault_rule.h"

#include "enclosure/problem.h"

#include <algorithm>
#include <array>

namespace enclosure {

namespace {

constexpr std::array<std::string_view, 6> kind_names = {"fail",  "flip",     "drop",
                                                        "delay", "time-out", "tear"};
constexpr std::array<std::string_view, 4> operation_names = {"read", "write", "flush", "identify"};
constexpr std::chrono::milliseconds longest_delay = std::chrono::hours(1);

template<class Value, std::size_t Count>
std::optional<Value> named(const std::array<std::string_view, Count>& names,
                           std::string_view name) {
    const auto* const found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) {
        return std::nullopt;
    }
    return static_cast<Value>(found - names.begin());
}

bool addresses(io_kind operation) {
    return operation == io_kind::read || operation == io_kind::write;
}

} // namespace

bool fault_rule::fits(const io_request& request) const {
    if (operation != request.kind || (port && *port != request.port)) {
        return false;
    }
    return !addresses(operation) ||
           (request.lba <= last_lba &&
            (request.lba >= first_lba || first_lba - request.lba < request.count));
}

void check_rule(const fault_rule& rule) {
    if (rule.port && !is_port(*rule.port)) {
        throw problem("fault: there is no such port; take 0 or 1");
    }
    if (rule.first_lba > rule.last_lba) {
        throw problem("fault: the first LBA lies behind the last; exchange them");
    }
    if (rule.byte >= sector_size) {
        throw problem("fault: a sector has no such byte; take 0 to 511");
    }
    if (rule.delay < std::chrono::milliseconds(0) || rule.delay > longest_delay) {
        throw problem("fault: the delay is out of range; take 0 to 3600000 milliseconds");
    }
    if (rule.kind == fault_kind::drop && rule.operation != io_kind::write &&
        rule.operation != io_kind::flush) {
        throw problem("fault: only a write or a flush can be dropped; take 'fail'");
    }
    if (rule.kind == fault_kind::flip && rule.operation == io_kind::flush) {
        throw problem("fault: a flush has no byte to flip; take 'fail' or 'drop'");
    }
    if (rule.kind == fault_kind::tear && rule.operation != io_kind::write) {
        throw problem("fault: only a write can be torn; take 'fail'");
    }
}

std::optional<fault_kind> fault_kind_named(std::string_view name) {
    return named<fault_kind>(kind_names, name);
}

std::optional<io_kind> operation_named(std::string_view name) {
    return named<io_kind>(operation_names, name);
}

} // namespace enclosure
