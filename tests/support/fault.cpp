#include "tests/support/fault.h"

#include <algorithm>

namespace {

using effect = fault::effect;

template<class Bytes> void distort(effect what, int nth, Bytes& bytes) {
    if (bytes.empty()) {
        return;
    }
    if (what == effect::flipped) {
        bytes[static_cast<std::size_t>(nth) * 13 % bytes.size()] ^= 0x10;
    } else {
        std::fill(bytes.begin(), bytes.end(),
                  static_cast<unsigned char>(what == effect::zeros ? 0 : 0xFF));
    }
}

std::vector<fault> all_faults() {
    std::vector<fault> all;
    for (const std::int32_t status : {-5, -4, -3, -2, -1, 1}) {
        all.push_back({std::to_string(status), effect::failure, status});
    }
    all.insert(all.end(), {{"bit", effect::flipped},
                           {"00", effect::zeros},
                           {"FF", effect::ones},
                           {"stale", effect::stale},
                           {"hang", effect::hanging},
                           {"gone", effect::vanished}});
    return all;
}

} // namespace

bool fault::lies() const {
    return what == effect::flipped || what == effect::zeros || what == effect::ones ||
           what == effect::stale;
}

const std::vector<fault>& every_fault() {
    static const std::vector<fault> all = all_faults();
    return all;
}

library_answer lie(const fault& kind, int nth, const library_call& call, memory_enclosure& now,
                   memory_enclosure& before) {
    if (!call.record) {
        library_answer answer = now.answer(call);
        if (kind.what == effect::stale) {
            return answer.bytes.empty() ? answer : before.answer(call);
        }
        distort(kind.what, nth, answer.bytes);
        return answer;
    }
    if (kind.what == effect::stale) {
        return {};
    }
    library_call other = call;
    distort(kind.what, nth, other.record.value());
    return now.answer(other);
}
