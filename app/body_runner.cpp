#include "app/body_runner.h"

#include <QEventLoop>
#include <utility>

#include "app/input_guard.h"
#include "app/ui_bridge.h"
#include "model/services.h"

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
    // The worker's last step is served by the loop below or by one nested in it, so neither the
    // body nor the loop goes away before it.
    const bool started = workers_.start([this, &body, &loop] {
        body();
        bridge_.run([&loop] { loop.quit(); });
    });
    if (started) {
        loop.exec();
    }
    return started;
}
