// The selected enclosure and its monitors, as a window deals with them.
#pragma once

#include <utility>

#include "model/krtool.h"

// Selects an enclosure, if it is there, after the former one's monitors. With the gate held.
inline void select_enclosure(controller_t identity) {
    if (krchip* const former = j.selected()) {
        former->stop_monitors();
    }
    {
        const lock_scope lock(j.records);
        j.current = std::move(identity);
    }
    if (krchip* const chip = j.selected()) {
        chip->select_chip();
    }
}

// Ends the monitors, those included that a timer which is just reporting still starts, until none
// of the `threads`, which tell how many are running(), is left. Without the gate.
template<class Threads> void end_monitors(const Threads& threads) {
    do {
        const gate_scope work(j.gate);
        if (krchip* const chip = j.selected()) {
            chip->stop_monitors();
        }
    } while (threads.running() > 0);
}
