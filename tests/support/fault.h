// What can go wrong with one call of the access library.
#pragma once

#include <string>
#include <vector>

#include "tests/support/memory_enclosure.h"

struct fault {
    enum class effect {
        failure,  // the call fails with `status`, and has done nothing
        flipped,  // one bit of what is read or written is another
        zeros,    // nothing but zeros is read or written
        ones,     // the same with 0xFF
        stale,    // read: what was there before the operation; written: nothing is
        hanging,  // no answer until the bridge has gone and its departure was told
        vanished, // the bridge is gone; its departure is told after the operation
    };

    std::string name; // as a column of the table
    effect what = effect::failure;
    std::int32_t status = 0;

    // The call is said to have succeeded.
    bool lies() const;
    // The bridge goes.
    bool departs() const { return what == effect::hanging || what == effect::vanished; }
};

// Statuses -5 to -1 and 1, then each of the other effects.
const std::vector<fault>& every_fault();

// The answer to the operation's `nth` call, that `kind` lies about; `before` is the enclosure
// before the operation. Calls that carry no bytes get their true answer.
library_answer lie(const fault& kind, int nth, const library_call& call, memory_enclosure& now,
                   memory_enclosure& before);
