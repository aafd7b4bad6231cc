// What stands around the outlets of one disk, on both pages and both tabs. Interface thread.
#pragma once

#include <cstddef>

struct disk_view;
class controller;

// The disk on that port, or its empty bay.
void show_disk_scene(controller& window, const disk_view& disk, std::size_t port);
// Nothing is known of it.
void clear_disk_scene(controller& window, std::size_t port);
