#include "tests/support/call_script.h"

#include <gtest/gtest.h>
#include <utility>

void call_script::expect(step next) {
    begun_ = true;
    steps_.push_back(std::move(next));
}

library_answer call_script::play(const library_call& call) {
    if (steps_.empty()) {
        ADD_FAILURE() << "unexpected call " << call.text << " after the end of the script";
        return {-1};
    }
    if (steps_.front().text != call.text) {
        ADD_FAILURE() << "unexpected call " << call.text << ", expected " << steps_.front().text;
        return {-1};
    }
    const step played = std::move(steps_.front());
    steps_.pop_front();
    if (played.record && played.record != call.record) {
        ADD_FAILURE() << call.text << " was given another sector:\n"
                      << hex_dump(call.record.value_or(sector_bytes{})) << "expected:\n"
                      << hex_dump(*played.record);
    }
    return played.answer;
}

void call_script::finish() {
    for (const step& missing : steps_) {
        ADD_FAILURE() << "expected call never came: " << missing.text;
    }
    steps_.clear();
    begun_ = false;
}
