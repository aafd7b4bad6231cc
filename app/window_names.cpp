#include "app/window_names.h"

#include "app/controller.h"
#include "app/spoken_parts.h"
#include "app/text_field.h"
#include "app/window_extras.h"

void tell_pictures(controller& window) {
    const window_extras& extras = *window.extras;
    const status_extras& status = extras.status;
    // The picture of Disk 1 is that of the volume as well.
    tell_picture(window.disk0cappicture,
                 {window.disk0label, window.disk0picmodefield, window.raidmodelabel});
    tell_picture(window.disk1cappicture, {window.disk1label, window.disk1picmodefield});
    for (std::size_t port = 0; port < status.empty_pictures.size(); ++port) {
        tell_picture(status.empty_pictures[port],
                     {status.empty_captions[port], status.empty_words[port]});
        tell_picture(extras.configured[port].icon, {});
    }
    tell_picture(status.enclosure_picture, {status.note_heading});
    tell_picture(status.state_icon, {});
    tell_picture(extras.hint_icon, {});
}
