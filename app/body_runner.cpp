#include "app/body_runner.h"

#include <QEventLoop>
#include <exception>
#include <string>
#include <utility>

#include "app/input_guard.h"
#include "app/ui_bridge.h"
#include "model/services.h"
#include "util/print.h"

namespace {

// An exception on the worker must not leave the interface waiting for it.
bool ran_to_its_end(const std::function<void()>& body) {
    try {
        body();
        return true;
    } catch (const std::exception& trouble) {
        print_err(std::string("kestrelraid: work ended early: ") + trouble.what() + "\n");
        return false;
    }
}

} // namespace

body_runner::body_runner(ui_bridge& bridge, input_guard& guard, thread_starter& workers,
                         std::function<void()> at_rest)
    : bridge_(bridge), guard_(guard), workers_(workers), at_rest_(std::move(at_rest)) {}

bool body_runner::run(const std::function<void()>& body) {
    if (!bridge_.here()) {
        body();
        return true;
    }
    guard_.begin_work();
    const bool ran = run_on_worker(body);
    guard_.end_work();
    if (!guard_.working()) {
        at_rest_();
    }
    return ran;
}

bool body_runner::run_on_worker(const std::function<void()>& body) {
    QEventLoop loop;
    bool ended = false;
    // The worker's last step is served by the loop below or by one nested in it, so neither the
    // body nor the loop goes away before it.
    const bool started = workers_.start([this, &body, &loop, &ended] {
        ended = ran_to_its_end(body);
        bridge_.run([&loop] { loop.quit(); });
    });
    if (started) {
        loop.exec();
    }
    return started && ended;
}
