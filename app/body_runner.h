// Keeps long work off the interface thread.
#pragma once

#include <functional>

class input_guard;
class thread_starter;
class ui_bridge;

// A body is work that may wait: for a flag, a lock, a pause, the access library. It runs on the
// thread that asks for it; when that is the interface thread, a worker runs it while the window
// is painted and served, with input dropped.
class body_runner {
public:
    // `at_rest` is called on the interface thread whenever the last body of it has returned.
    // Everything named here outlives the runner.
    body_runner(ui_bridge& bridge, input_guard& guard, thread_starter& workers,
                std::function<void()> at_rest);

    // Runs the body; returns when it has ended. False: there was no thread to be had for it,
    // or it threw on its worker. Any thread.
    bool run(const std::function<void()>& body);

private:
    bool run_on_worker(const std::function<void()>& body);

    ui_bridge& bridge_;
    input_guard& guard_;
    thread_starter& workers_;
    const std::function<void()> at_rest_;
};
