#include "model/locks.h"

#include <cassert>

void owned_mutex::lock() NO_THREAD_SAFETY_ANALYSIS {
    assert(!held_here() && "locked twice by one thread");
    mutex_.lock();
    owner_ = std::this_thread::get_id();
}

void owned_mutex::unlock() NO_THREAD_SAFETY_ANALYSIS {
    owner_ = std::thread::id();
    mutex_.unlock();
}

bool owned_mutex::held_here() const {
    return owner_.load() == std::this_thread::get_id();
}

bool work_gate::held_here() const {
    const mutex_scope lock(mutex_);
    return owner_ == std::this_thread::get_id();
}

void work_gate::enter() {
    const mutex_scope lock(mutex_);
    while (owner_ != std::thread::id()) {
        free_.wait(mutex_);
    }
    owner_ = std::this_thread::get_id();
}

bool work_gate::try_enter() {
    const mutex_scope lock(mutex_);
    if (owner_ != std::thread::id()) {
        return false;
    }
    owner_ = std::this_thread::get_id();
    return true;
}

void work_gate::leave() {
    {
        const mutex_scope lock(mutex_);
        owner_ = std::thread::id();
    }
    free_.notify_one();
}

gate_scope::gate_scope(work_gate& gate) : gate_(gate), entered_(!gate.held_here()) {
    if (entered_) {
        gate_.enter();
    }
}

gate_scope::~gate_scope() {
    if (entered_) {
        gate_.leave();
    }
}

gate_attempt::~gate_attempt() {
    if (entered_) {
        gate_.leave();
    }
}

gate_pause::gate_pause(work_gate& gate) : gate_(gate), paused_(gate.held_here()) {
    if (paused_) {
        gate_.leave();
    }
}

gate_pause::~gate_pause() {
    if (paused_) {
        gate_.enter();
    }
}
