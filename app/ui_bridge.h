// The one way of other threads into the interface thread.
#pragma once

#include <QSocketNotifier>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <thread>

#include "util/mutex.h"
#include "util/thread_annotations.h"

// Steps run on the interface thread, first in, first out, and their callers wait. One is taken at
// a time, so that those behind an open panel are served by the panel's own event loop. Qt's own
// queues are not used: nothing that a worker hands over ever outlives its wait.
class ui_bridge {
public:
    // On the interface thread, with the application object there. The file descriptor is open
    // for as long as the bridge lives.
    ui_bridge();
    // No thread may wait in run() any more.
    ~ui_bridge();
    ui_bridge(const ui_bridge&) = delete;
    ui_bridge& operator=(const ui_bridge&) = delete;

    // Runs `step` on the interface thread and returns when it has run; on the interface thread
    // that is at once. Any thread, with neither lock of the model held.
    void run(const std::function<void()>& step);

    // Whether the caller is the interface thread.
    bool here() const { return std::this_thread::get_id() == thread_; }

private:
    struct entry {
        explicit entry(const std::function<void()>& what) : step(what) {}
        const std::function<void()>& step; // the waiting caller's
        bool done = false;                 // guarded by the bridge's mutex
    };

    void serve_one();
    std::shared_ptr<entry> take();

    const std::thread::id thread_ = std::this_thread::get_id();
    const int event_; // counts the waiting entries
    QSocketNotifier notifier_;
    plain_mutex mutex_;
    std::condition_variable_any served_;
    std::deque<std::shared_ptr<entry>> waiting_ GUARDED_BY(mutex_);
};
