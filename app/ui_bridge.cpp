#include "app/ui_bridge.h"

#include <cstdint>
#include <cstdlib>
#include <sys/eventfd.h>
#include <unistd.h>

#include "util/print.h"

namespace {

int open_event() {
    const int event = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK | EFD_SEMAPHORE);
    if (event < 0) {
        print_err("kestrelraid: no event descriptor to be had: close other programs\n");
        std::abort();
    }
    return event;
}

} // namespace

ui_bridge::ui_bridge() : event_(open_event()), notifier_(event_, QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] { serve_one(); });
}

ui_bridge::~ui_bridge() {
    close(event_);
}

void ui_bridge::run(const std::function<void()>& step) {
    if (here()) {
        step();
        return;
    }
    const auto mine = std::make_shared<entry>(step);
    const mutex_scope lock(mutex_);
    waiting_.push_back(mine);
    const std::uint64_t one = 1;
    while (write(event_, &one, sizeof one) < 0 && errno == EINTR) {
    }
    while (!mine->done) {
        served_.wait(mutex_);
    }
}

// The descriptor counts down by one before the step runs: what waits behind it is seen by
// whatever event loop the step opens.
void ui_bridge::serve_one() {
    const std::shared_ptr<entry> next = take();
    if (!next) {
        return;
    }
    next->step();
    {
        const mutex_scope lock(mutex_);
        next->done = true;
    }
    served_.notify_all();
}

std::shared_ptr<ui_bridge::entry> ui_bridge::take() {
    std::uint64_t count = 0;
    if (read(event_, &count, sizeof count) < 0) {
        return nullptr;
    }
    const mutex_scope lock(mutex_);
    if (waiting_.empty()) {
        return nullptr;
    }
    std::shared_ptr<entry> next = waiting_.front();
    waiting_.pop_front();
    return next;
}
