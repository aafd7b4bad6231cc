// The ground that the tests of the monitors stand on.
#pragma once

#include <initializer_list>

#include "model/krtool.h"
#include "tests/support/fixture.h"

class Monitor : public model_test {
protected:
    // A mirror with a rebuild from port 0 to port 1.
    krchip& take_rebuild() {
        metadata_sector marked = metadata_of(2, 0, 1900, disk_b());
        marked.flags = 0x80;
        return take_chip(member_a(2, &marked), member_b(2));
    }

    void answer_status(std::initializer_list<rebuild_reading> readings) {
        library.with_bridges([&](memory_enclosure& all) {
            all.bridge(device).readings.assign(readings.begin(), readings.end());
        });
    }

    // Starts the poller; the log is empty afterwards and its body waits.
    void start_poller_of(krchip& chip) {
        chip.start_polling();
        log.clear();
    }

    void start_timer_of(krchip& chip) {
        const gate_scope work(j.gate);
        chip.start_raid1_timer();
        log.clear();
    }

    static void stop_monitors_of(krchip& chip) {
        const gate_scope work(j.gate);
        chip.stop_monitors();
    }
};
