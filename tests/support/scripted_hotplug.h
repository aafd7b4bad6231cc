// A source of arrivals and departures that a test plays.
#pragma once

#include <deque>
#include <functional>
#include <map>

#include "device/hotplug.h"
#include "tests/support/call_log.h"

// Writes down every call. One thread at a time.
class scripted_hotplug final : public hotplug_source {
public:
    static constexpr std::uint32_t iterator = 0x77;

    explicit scripted_hotplug(call_log& log) : log_(log) {}

    bool listening = true;                         // what match() returns
    std::deque<std::uint32_t> arrived;             // services that next() hands out
    std::map<std::uint32_t, std::int32_t> refused; // services without interest, and the error
    std::function<void()> on_run;                  // what happens in the run loop

    // Reports the bridges in `arrived`, if somebody listens.
    void arrive();
    // Sends a message about a bridge in which interest was registered; else fails the test.
    void message(std::uint32_t service, std::uint32_t message_type);
    bool watches(std::uint32_t service) const { return departures_.contains(service); }
    void reset();

    bool match(std::string_view registry_class) override;
    std::uint32_t add_matching_notification(arrival_handler handler) override;
    std::uint32_t next(std::uint32_t iterator) override;
    std::int32_t add_interest_notification(std::uint32_t service,
                                           departure_handler handler) override;
    void run() override;

private:
    call_log& log_;
    arrival_handler arrival_;
    std::map<std::uint32_t, departure_handler> departures_;
};
