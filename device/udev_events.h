// Events of SCSI generic nodes, as udev tells them once it has applied its rules.
#pragma once

#include "device/udev_pointers.h"

#include <optional>

struct node_event {
    enum class kind {
        seen, // added or changed: there and ready for use
        removed,
        lost, // events are missing
    };
    kind what;
    udev_pointer<udev_device> node; // none when events were lost
};

// One thread at a time.
class node_events {
public:
    virtual ~node_events() = default;

    // Listens from now on. False: that is not possible, for the reason in errno.
    virtual bool open() = 0;

    // For poll(), when open.
    virtual int descriptor() const = 0;

    // The next event that has come, or nothing; never waits.
    virtual std::optional<node_event> next() = 0;
};

class udev_events final : public node_events {
public:
    bool open() override;
    int descriptor() const override;
    std::optional<node_event> next() override;

private:
    udev_pointer<udev> context_;
    udev_pointer<udev_monitor> monitor_;
};
