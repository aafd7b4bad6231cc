// What surrounds the outlets: pictures by state, notes, hints and captions. All on the interface
// thread.
#pragma once

#include <string>

struct outlook;
struct pace_view;
struct view_state;
class controller;

// The captions of what is no outlet, in the user's language.
void caption_extras(controller& window);
// Page 0 or 1 is in front.
void mark_page_caption(controller& window, int page);
// The enclosure that a restart would reach, by its name in the list; empty: there is none.
void show_restart_target(controller& window, const std::string& name);

// Nothing is shown.
void clear_scene(controller& window);
// Bridges are being looked for.
void show_scanning_scene(controller& window);
// The array of the chip is being changed, and has been changed: the enclosure restarts.
void show_changing_scene(controller& window);
void show_restarting_scene(controller& window);
// No bridge is listed. Announces why.
void show_empty_scene(controller& window);
// A chip is shown: its disks, or one volume, and how it stands.
void show_chip_scene(controller& window, const view_state& view, const outlook& now);
// A rebuild runs, with the disk on this port as its source.
void mark_running(controller& window, int source);
// The progress of a rebuild is shown, in place of the hint.
void show_progress_scene(controller& window);
// How fast it goes.
void show_pace(controller& window, const pace_view& pace);
