#include "model/system_services.h"

#include <exception>
#include <string>
#include <syslog.h>
#include <thread>
#include <utility>

#include "model/wake_point.h"
#include "util/print.h"

namespace {

// No exception leaves a thread: it would end the process with neither of its two statuses.
void run_guarded(const std::function<void()>& body) {
    try {
        body();
    } catch (const std::exception& error) {
        print_err(std::string("kestrelraid: a background thread ended: ") + error.what() + "\n");
    } catch (...) {
        print_err("kestrelraid: a background thread ended\n");
    }
}

} // namespace

void steady_pauses::sleep(std::chrono::milliseconds time) {
    std::this_thread::sleep_for(time);
}

void steady_pauses::sleep_until_woken(wake_point& point, std::chrono::milliseconds time) {
    point.wait_for(time);
}

std::time_t system_clock::now() {
    return std::time(nullptr);
}

bool detached_threads::start(std::function<void()> body) {
    try {
        std::thread([body = std::move(body)] { run_guarded(body); }).detach();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

void system_log::line(const std::string& text) {
    openlog("kestrelraid", LOG_PID, LOG_USER);
    syslog(LOG_NOTICE, "%s", text.c_str());
}
