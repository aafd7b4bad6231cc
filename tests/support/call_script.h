// What the access library is expected to be asked, call by call, and what it answers.
#pragma once

#include <cstddef>
#include <deque>
#include <string>

#include "tests/support/library_call.h"

// Guarded by its owner.
class call_script {
public:
    struct step {
        std::string text; // as library_call::text
        library_answer answer;
        std::optional<sector_bytes> record; // exactly what has to be written, when given
    };

    void expect(step next);
    bool begun() const { return begun_; }

    // The answer to `call`. One that is not the next of the script fails the test and gets the
    // status -1.
    library_answer play(const library_call& call);

    // Fails the test for every step that was not played, and forgets the script.
    void finish();

private:
    std::deque<step> steps_;
    bool begun_ = false;
};
