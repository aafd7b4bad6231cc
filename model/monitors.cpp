// Starting, stopping and awaiting the monitors.
#include "model/monitors.h"

#include <memory>

#include "model/krtool.h"
#include "model/window.h"

namespace {

constexpr std::chrono::milliseconds step(10);

bool alive(const shared_flag& flag, const monitor_handle& block) {
    return flag || (block && block->awaited());
}

// Makes the chip's poller ours to start, or gives nothing when it has one.
monitor_handle claim_poller(chip_place place, bool only_if_wanted) {
    monitor_handle block;
    j.with_chip(place, [&](krchip& chip) {
        if (alive(chip.poller_alive, chip.poller_thread) || (only_if_wanted && !chip.polling)) {
            return;
        }
        block = std::make_shared<monitor_block>(place);
        chip.poller_thread = block;
    });
    return block;
}

void start_poller(chip_place place, bool only_if_wanted) {
    const monitor_handle block = claim_poller(place, only_if_wanted);
    if (!block) {
        return;
    }
    ctrller->disablegui(true);
    ctrller->startprogressbar();
    ctrller->showrebuildbuttons();
    const bool started = j.with.threads.start([block] {
        const monitor_life life(block);
        block->go.wait();
        poller(block);
    });
    if (!started) {
        block->end();
        ctrller->show_error_and_exit("Error creating polling thread..Exiting");
        return;
    }
    j.with_chip(place, [&](krchip& chip) {
        if (!block->stop_asked()) {
            chip.polling = true;
        }
    });
    block->go.wake();
}

} // namespace

void start_poller(chip_place place) {
    start_poller(place, false);
}

void start_wanted_poller(chip_place place) {
    start_poller(place, true);
}

bool krchip::start_polling() {
    start_poller(j.place_of(*this));
    return true;
}

bool krchip::stop_polling() {
    {
        const lock_scope lock(j.records);
        polling = false;
        if (poller_thread) {
            poller_thread->ask_stop();
        }
    }
    ctrller->stopprogressbar();
    return true;
}

bool krchip::start_raid1_timer() {
    const chip_place place = j.place_of(*this);
    monitor_handle block;
    j.with_chip(place, [&](krchip& chip) {
        if (alive(chip.raid1_timer_alive, chip.raid1_timer_thread)) {
            return;
        }
        block = std::make_shared<monitor_block>(place);
        chip.raid1_timer_thread = block;
        chip.raid1_timer_on = true;
    });
    if (!block) {
        return true;
    }
    const bool started = j.with.threads.start([block] {
        const monitor_life life(block);
        raid1_timer(block);
    });
    if (!started) {
        block->end();
        ctrller->show_error_and_exit("Error creating RAID1 timer thread..Exiting");
        raid1_timer_on = false;
    }
    return true;
}

bool krchip::stop_raid1_timer() {
    raid1_timer_on = false;
    return true;
}

void krchip::stop_monitors() {
    stop_raid1_timer();
    await_raid1_timer();
    stop_polling();
    await_poller();
}

bool krchip::has_monitors() {
    const lock_scope lock(j.records);
    return alive(raid1_timer_alive, raid1_timer_thread) || alive(poller_alive, poller_thread);
}

void krchip::await_raid1_timer() {
    monitor_handle block;
    {
        const lock_scope lock(j.records);
        block = raid1_timer_thread;
    }
    await_monitor(raid1_timer_alive, block);
}

void krchip::await_poller() {
    monitor_handle block;
    {
        const lock_scope lock(j.records);
        block = poller_thread;
    }
    await_monitor(poller_alive, block);
}

void await_monitor(const shared_flag& flag, const monitor_handle& block) {
    std::chrono::milliseconds patience = std::chrono::seconds(10);
    while (alive(flag, block)) {
        const bool living = block && block->living();
        if (!living) {
            if (patience <= std::chrono::milliseconds::zero()) {
                return;
            }
            patience -= step;
        }
        j.with.pause.sleep(step);
    }
}
