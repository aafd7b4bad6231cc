#include "enclosure/fault_stack.h"

#include "enclosure/problem.h"

#include <algorithm>

namespace enclosure {

namespace {

constexpr std::size_t most_faults = 64;

} // namespace

void fault_stack::add(const fault_rule& rule) {
    check_rule(rule);
    if (filters_.size() >= most_faults) {
        throw problem("fault: there are 64 already; clear them first");
    }
    disk_io& next = filters_.empty() ? disks_ : *filters_.back();
    filters_.push_back(make_filter(rule, next, met_));
}

bool fault_stack::concerns(int port, std::uint64_t lba, std::uint64_t count) const {
    return std::any_of(filters_.begin(), filters_.end(), [&](const auto& filter) {
        return filter->rule().fits({io_kind::read, port, lba, count, {}}) ||
               filter->rule().fits({io_kind::write, port, lba, count, {}});
    });
}

} // namespace enclosure
