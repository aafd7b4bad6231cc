// What surrounds the outlets: pictures by state, notes, hints and captions. All on the interface
// thread.
#pragma once

#include <string>

struct view_state;
class QPushButton;
class controller;

// The captions of what is no outlet, in the user's language.
void caption_extras(controller& window);
// Page 0 or 1 is in front.
void mark_page_caption(controller& window, int page);

// Nothing is shown.
void clear_scene(controller& window);
// Bridges are being looked for.
void show_scanning_scene(controller& window);
// There is no bridge.
void show_empty_scene(controller& window);
// A chip is shown: its disks, or one volume.
void show_chip_scene(controller& window, const view_state& view);
// A rebuild runs in the direction of this button.
void mark_running(QPushButton* button);
// The progress of a rebuild is shown, in place of the hint.
void show_progress_scene(controller& window);
// The enclosure that a restart would reach, by its name in the list; empty: there is none.
void show_restart_target(controller& window, const std::string& name);
