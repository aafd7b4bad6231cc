#include "tests/support/scripted_threads.h"

#include <gtest/gtest.h>
#include <utility>

#include "tests/support/recording_window.h"

void scripted_threads::refuse() {
    const mutex_scope lock(mutex_);
    refusing_ = true;
}

void scripted_threads::run_for_real(thread_starter& starter) {
    const mutex_scope lock(mutex_);
    real_ = &starter;
}

std::size_t scripted_threads::waiting() const {
    const mutex_scope lock(mutex_);
    return bodies_.size();
}

void scripted_threads::run_next() {
    std::function<void()> body;
    {
        const mutex_scope lock(mutex_);
        if (bodies_.empty()) {
            ADD_FAILURE() << "no thread was started";
            return;
        }
        body = std::move(bodies_.front());
        bodies_.pop_front();
    }
    body();
}

int scripted_threads::running() const {
    const mutex_scope lock(mutex_);
    return running_;
}

void scripted_threads::await_ends() const {
    const mutex_scope lock(mutex_);
    while (running_ > 0) {
        ended_.wait(mutex_);
    }
}

void scripted_threads::reset() {
    await_ends();
    const mutex_scope lock(mutex_);
    refusing_ = false;
    real_ = nullptr;
    bodies_.clear();
}

bool scripted_threads::start(std::function<void()> body) {
    thread_starter* real = nullptr;
    {
        const mutex_scope lock(mutex_);
        log_.add(from_threads, refusing_ ? "thread refused" : "thread started");
        if (refusing_) {
            return false;
        }
        if (real_ == nullptr) {
            bodies_.push_back(std::move(body));
            return true;
        }
        real = real_;
        ++running_;
    }
    if (real->start([this, run = std::move(body)] { run_and_count(run); })) {
        return true;
    }
    const mutex_scope lock(mutex_);
    --running_;
    return false;
}

void scripted_threads::run_and_count(const std::function<void()>& body) {
    try {
        body();
    } catch (const process_ended& end) {
        log_.add(from_exit, "a thread ended the process with " + std::to_string(end.status));
    }
    {
        const mutex_scope lock(mutex_);
        --running_;
        ended_.notify_all();
    }
}
