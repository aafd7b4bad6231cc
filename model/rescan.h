// The notification thread: what is done when bridges come and go, or somebody asks to read
// everything again.
#pragma once

#include <cstdint>

class hotplug_source;

// The notification port and the run loop are one object here, the source of events.
extern hotplug_source* gNotifyPort;
extern hotplug_source* gRunLoop;
extern std::uint32_t gAddedIter; // iterator over arrived bridges

// The notification thread's body. Its argument is not used.
void start_device_notification(void* argument);

// Reads everything again and shows it, on the caller's thread. The iterator yields the bridges
// that have arrived; 0 when nothing arrived. Called with neither gate nor locks held, never on the
// interface thread.
void DeviceAdded(void* reference, std::uint32_t iterator);

// Judges a message about a bridge; for a departure waits 8 seconds and reads everything again.
// Only the message type is used. Notification thread.
void DeviceRemoved(void* reference, std::uint32_t service, std::uint32_t message_type,
                   void* message_argument);
