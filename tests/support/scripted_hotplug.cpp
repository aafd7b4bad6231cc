#include "tests/support/scripted_hotplug.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>

void scripted_hotplug::arrive() {
    if (!arrival_) {
        ADD_FAILURE() << "nobody waits for arrivals";
        return;
    }
    arrival_(iterator);
}

void scripted_hotplug::message(std::uint32_t service, std::uint32_t message_type) {
    const auto found = departures_.find(service);
    if (found == departures_.end()) {
        ADD_FAILURE() << "nobody waits for messages of " << hex(service);
        return;
    }
    const departure_handler handler = found->second;
    handler(service, message_type);
}

void scripted_hotplug::reset() {
    listening = true;
    arrived.clear();
    refused.clear();
    on_run = nullptr;
    arrival_ = nullptr;
    departures_.clear();
}

bool scripted_hotplug::match(std::string_view registry_class) {
    log_.add(from_hotplug, "match(" + std::string(registry_class) + ")");
    return listening;
}

std::uint32_t scripted_hotplug::add_matching_notification(arrival_handler handler) {
    log_.add(from_hotplug, "add_matching_notification()");
    arrival_ = std::move(handler);
    return iterator;
}

std::uint32_t scripted_hotplug::next(std::uint32_t drained) {
    log_.add(from_hotplug, "next(" + hex(drained) + ")");
    if (arrived.empty()) {
        return 0;
    }
    const std::uint32_t service = arrived.front();
    arrived.pop_front();
    return service;
}

std::int32_t scripted_hotplug::add_interest_notification(std::uint32_t service,
                                                         departure_handler handler) {
    log_.add(from_hotplug, "add_interest_notification(" + hex(service) + ")");
    const auto error = refused.find(service);
    if (error != refused.end()) {
        return error->second;
    }
    departures_[service] = std::move(handler);
    return 0;
}

void scripted_hotplug::run() {
    log_.add(from_hotplug, "run()");
    if (on_run) {
        on_run();
    }
}
