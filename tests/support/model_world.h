// The surroundings of the tests' one tool object.
#pragma once

#include "model/exit_gate.h"
#include "model/krtool.h"
#include "model/services.h"
#include "tests/support/call_log.h"
#include "tests/support/recording_log.h"
#include "tests/support/recording_tree.h"
#include "tests/support/recording_window.h"
#include "tests/support/scripted_clock.h"
#include "tests/support/scripted_hotplug.h"
#include "tests/support/scripted_library.h"
#include "tests/support/scripted_pauses.h"
#include "tests/support/scripted_registry.h"
#include "tests/support/scripted_threads.h"
#include "tests/support/scripted_volumes.h"
#include "tests/support/table_lookup.h"

// `j` and `ctrller` are defined beside it and use these parts; all write into one log.
struct model_world {
    call_log log;
    scripted_library library{log};
    scripted_registry registry{log};
    scripted_hotplug hotplug{log};
    scripted_pauses pause{log};
    scripted_clock clock;
    scripted_threads threads{log};
    recording_log console{log};
    table_lookup texts;
    exit_gate exit{[this](int status) { note_end(status); }};
    scripted_volumes volumes;
    recording_window view{log};

    services all();

    // Everything, `j` included, as it was at first. Waits for real threads to end.
    void reset();

private:
    void note_end(int status);
    void hold_the_rules();
};

model_world& world();
// The tree of `j`.
recording_tree& tree_of_j();
