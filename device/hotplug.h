// Arrival and departure of bridges.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

// The registry's class of bridges.
inline constexpr std::string_view bridge_class = "krPeripheralDeviceType00";

// Message type of a departure: the bridge's entry is terminated.
inline constexpr std::uint32_t message_terminated = 0xE0000010U;

// A source of events with a run loop. All operations and both handlers run on the notification
// thread. The source listens from match() on, keeps events in order and drops none: a departure
// is delivered before the arrival of the same bridge that follows it, and an arrival only once
// the bridge can be opened.
class hotplug_source {
public:
    using arrival_handler = std::function<void(std::uint32_t iterator)>;
    using departure_handler =
        std::function<void(std::uint32_t service, std::uint32_t message_type)>;

    virtual ~hotplug_source() = default;

    // Begins to listen for bridges of the class. False: there is nothing to listen to; the
    // source has then said why on standard error, in one line.
    virtual bool match(std::string_view registry_class) = 0;

    // Takes the handler for arrivals and returns the iterator (never 0) over bridges that have
    // arrived and were not taken yet. The handler is called from run() with that iterator when
    // there are some; draining the iterator arms the next call.
    virtual std::uint32_t add_matching_notification(arrival_handler handler) = 0;

    // The next arrived bridge, or 0 when the iterator is drained.
    virtual std::uint32_t next(std::uint32_t iterator) = 0;

    // Takes the handler for messages about one bridge. 0, or the error's number.
    virtual std::int32_t add_interest_notification(std::uint32_t service,
                                                   departure_handler handler) = 0;

    // Serves events until the source comes to an end, which it normally never does.
    virtual void run() = 0;
};
