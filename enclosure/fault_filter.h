// One fault between the chip and the disks.
#pragma once

#include "enclosure/disk_io.h"
#include "enclosure/fault_rule.h"

#include <memory>

namespace enclosure {

// Hands requests on to the next link and strikes those that its rule is about. One thread at a
// time, that of the chip; what fails is in the result.
class fault_filter : public disk_io {
public:
    // `next` outlives it.
    fault_filter(const fault_rule& rule, disk_io& next) : rule_(rule), next_(&next) {}

    bool perform(const io_request& request) final;

    const fault_rule& rule() const { return rule_; }

protected:
    // A request that the rule is about.
    virtual bool strike(const io_request& request) = 0;

    // Which of the request's sectors is the first that the rule is about, counted from 0.
    std::uint64_t first_struck(const io_request& request) const;

    bool hand_on(const io_request& request) { return next_->perform(request); }

private:
    fault_rule rule_;
    disk_io* next_;
    std::uint64_t seen_ = 0;
};

// What becomes of the answer to which requests belong.
struct hold_up {
    moment delay{0};       // it takes so much longer
    bool for_ever = false; // it never comes
};

// The filter for a rule that makes sense. Those that hold the answer up note it in `met`, which
// must outlive them.
std::unique_ptr<fault_filter> make_filter(const fault_rule& rule, disk_io& next, hold_up& met);

} // namespace enclosure
