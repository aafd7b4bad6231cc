#include "enclosure/fault_filter.h"

#include <algorithm>
#include <vector>

namespace enclosure {

namespace {

class failing final : public fault_filter {
    using fault_filter::fault_filter;

    bool strike(const io_request&) override { return false; }
};

class dropping final : public fault_filter {
    using fault_filter::fault_filter;

    bool strike(const io_request&) override { return true; }
};

class delaying final : public fault_filter {
public:
    delaying(const fault_rule& rule, disk_io& next, hold_up& met)
        : fault_filter(rule, next), met_(&met) {}

private:
    bool strike(const io_request& request) override {
        met_->delay += rule().delay;
        return hand_on(request);
    }

    hold_up* met_;
};

// The disk takes the request and is not heard of again.
class silencing final : public fault_filter {
public:
    silencing(const fault_rule& rule, disk_io& next, hold_up& met)
        : fault_filter(rule, next), met_(&met) {}

private:
    bool strike(const io_request&) override {
        met_->for_ever = true;
        return false;
    }

    hold_up* met_;
};

class flipping final : public fault_filter {
    using fault_filter::fault_filter;

    bool strike(const io_request& request) override {
        const auto at = static_cast<std::size_t>(first_struck(request)) * sector_size + rule().byte;
        if (at >= request.data.size()) {
            return hand_on(request);
        }
        if (request.kind == io_kind::write) {
            std::vector<std::uint8_t> spoilt(request.data.begin(), request.data.end());
            turn(spoilt[at]);
            io_request changed = request;
            changed.data = spoilt;
            return hand_on(changed);
        }
        const bool done = hand_on(request);
        turn(request.data[at]);
        return done;
    }

    static void turn(std::uint8_t& byte) { byte = static_cast<std::uint8_t>(~byte); }
};

// As when the power goes in the middle of a write: what comes before the sector struck is made,
// what comes behind it is not.
class tearing final : public fault_filter {
    using fault_filter::fault_filter;

    bool strike(const io_request& request) override {
        const std::uint64_t whole = first_struck(request);
        return (whole == 0 || hand_on(part_of(request, 0, whole))) && tear(request, whole);
    }

    bool tear(const io_request& request, std::uint64_t at) {
        sector_data mixed{};
        const std::uint64_t lba = request.lba + at;
        if (!hand_on({io_kind::read, request.port, lba, 1, mixed})) {
            return false;
        }
        const io_request torn = part_of(request, at, 1);
        constexpr sector_data zeros{};
        const byte_view fresh = torn.data.empty() ? byte_view(zeros) : byte_view(torn.data);
        std::copy_n(fresh.begin(), rule().byte, mixed.begin());
        return hand_on({io_kind::write, request.port, lba, 1, mixed});
    }

    static io_request part_of(const io_request& request, std::uint64_t at, std::uint64_t count) {
        io_request part = request;
        part.lba += at;
        part.count = count;
        if (!request.data.empty()) {
            part.data = request.data.subspan(at * sector_size, count * sector_size);
        }
        return part;
    }
};

} // namespace

std::uint64_t fault_filter::first_struck(const io_request& request) const {
    return request.lba < rule_.first_lba ? rule_.first_lba - request.lba : 0;
}

bool fault_filter::perform(const io_request& request) {
    if (!rule_.fits(request)) {
        return hand_on(request);
    }
    ++seen_;
    return rule_.nth == 0 || rule_.nth == seen_ ? strike(request) : hand_on(request);
}

std::unique_ptr<fault_filter> make_filter(const fault_rule& rule, disk_io& next, hold_up& met) {
    switch (rule.kind) {
    case fault_kind::fail:
        return std::make_unique<failing>(rule, next);
    case fault_kind::flip:
        return std::make_unique<flipping>(rule, next);
    case fault_kind::drop:
        return std::make_unique<dropping>(rule, next);
    case fault_kind::delay:
        return std::make_unique<delaying>(rule, next, met);
    case fault_kind::time_out:
        return std::make_unique<silencing>(rule, next, met);
    case fault_kind::tear:
        return std::make_unique<tearing>(rule, next);
    }
    return nullptr;
}

} // namespace enclosure
