// Owners of libudev's objects.
#pragma once

#include <libudev.h>

#include <memory>

struct udev_release {
    void operator()(udev* what) const { udev_unref(what); }
    void operator()(udev_device* what) const { udev_device_unref(what); }
    void operator()(udev_enumerate* what) const { udev_enumerate_unref(what); }
    void operator()(udev_monitor* what) const { udev_monitor_unref(what); }
};

template<class Object> using udev_pointer = std::unique_ptr<Object, udev_release>;
