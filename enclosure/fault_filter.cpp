#include "enclosure/fault_filter.h"

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
    delaying(const fault_rule& rule, disk_io& next, moment& delay)
        : fault_filter(rule, next), delay_(&delay) {}

private:
    bool strike(const io_request& request) override {
        *delay_ += rule().delay;
        return hand_on(request);
    }

    moment* delay_;
};

class flipping final : public fault_filter {
    using fault_filter::fault_filter;

    bool strike(const io_request& request) override {
        const std::size_t at = place_in(request);
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

    std::size_t place_in(const io_request& request) const {
        const std::uint64_t sector =
            request.lba < rule().first_lba ? rule().first_lba - request.lba : 0;
        return static_cast<std::size_t>(sector) * sector_size + rule().byte;
    }

    static void turn(std::uint8_t& byte) { byte = static_cast<std::uint8_t>(~byte); }
};

} // namespace

bool fault_filter::perform(const io_request& request) {
    if (!rule_.fits(request)) {
        return hand_on(request);
    }
    ++seen_;
    return rule_.nth == 0 || rule_.nth == seen_ ? strike(request) : hand_on(request);
}

std::unique_ptr<fault_filter> make_filter(const fault_rule& rule, disk_io& next, moment& delay) {
    switch (rule.kind) {
    case fault_kind::fail:
        return std::make_unique<failing>(rule, next);
    case fault_kind::flip:
        return std::make_unique<flipping>(rule, next);
    case fault_kind::drop:
        return std::make_unique<dropping>(rule, next);
    case fault_kind::delay:
        return std::make_unique<delaying>(rule, next, delay);
    }
    return nullptr;
}

} // namespace enclosure
