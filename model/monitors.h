// The two background monitors of the selected chip.
#pragma once

#include "model/monitor.h"
#include "model/shared_flag.h"

// Starts the poller of the chip at `place` unless it has one, or the records have been replaced
// since. With the gate or without; neither lock held.
void start_poller(chip_place place);
// The same, but only while the chip's `polling` is still set: for those who saw it in a copy.
void start_wanted_poller(chip_place place);

// Follows a running rebuild, every 4 seconds, until it is finished or not wanted any longer.
// Thread body; the block says which chip.
void poller(const monitor_handle& block);

// Watches the ports of a mirror, once a second, and reports a disk that came or went. Thread
// body.
void raid1_timer(const monitor_handle& block);

// Waits in steps of 10 ms while the flag is up or its thread is awaited: for as long as the
// thread lives, and 10 seconds more for a flag without a living thread.
void await_monitor(const shared_flag& alive, const monitor_handle& block);
