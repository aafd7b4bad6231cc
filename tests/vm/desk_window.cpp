#include "tests/vm/desk_window.h"

#include "model/krtool.h"
#include "model/monitors.h"
#include "model/rescan.h"

#include "tests/support/selected_chip.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

void desk_window::changed() {
    const std::lock_guard lock(mutex_);
    ++changes_;
    wake_.notify_all();
}

void desk_window::await(const std::string& what, const std::function<bool()>& reached) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(2);
    for (std::uint64_t seen = 0; !reached();) {
        std::unique_lock lock(mutex_);
        if (!wake_.wait_until(lock, end, [&] { return changes_ != seen; })) {
            throw std::runtime_error("waited in vain for " + what);
        }
        seen = changes_;
    }
    std::printf("reached: %s\n", what.c_str());
    std::fflush(stdout);
}

std::vector<std::string> desk_window::messages() {
    const std::lock_guard lock(mutex_);
    return messages_;
}

void desk_window::update_raid_information() {
    const std::optional<chip_snapshot> current = j.current_chip();
    if (current && current->chip.polling) {
        start_wanted_poller(current->place);
    }
    changed();
}

void desk_window::select_first_controller() {
    const gate_scope gate(j.gate);
    if (!j.controller_map.empty()) {
        select_enclosure(
            j.chips[static_cast<std::size_t>(j.controller_map.front().second)].identity);
    }
    update_raid_information();
}

void desk_window::updatepoll(std::uint64_t end, std::uint64_t currlba, bool diskp100) {
    std::printf("copied %llu of %llu%s\n", static_cast<unsigned long long>(currlba),
                static_cast<unsigned long long>(end), diskp100 ? ", all" : "");
    changed();
}

void desk_window::show_message(const std::string& text) {
    std::printf("message: %s\n", text.c_str());
    {
        const std::lock_guard lock(mutex_);
        messages_.push_back(text);
    }
    changed();
}

void desk_window::show_error_and_exit(const std::string& message) {
    std::printf("fatal: %s\n", message.c_str());
    std::fflush(stdout);
    std::_Exit(3);
}

void desk_window::refresh() {
    DeviceAdded(nullptr, 0);
}
