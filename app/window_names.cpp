#include "app/window_names.h"

#include "app/controller.h"
#include "app/spoken_parts.h"
#include "app/text_field.h"
#include "app/window_extras.h"

void tell_pictures(controller& window) {
    const window_extras& extras = *window.extras;
    // The picture of Disk 1 is that of the volume as well.
    tell_picture(window.disk0cappicture,
                 {window.disk0label, window.disk0picmodefield, window.raidmodelabel});
    tell_picture(window.disk1cappicture, {window.disk1label, window.disk1picmodefield});
    for (std::size_t port = 0; port < extras.empty_pictures.size(); ++port) {
        tell_picture(extras.empty_pictures[port],
                     {extras.empty_captions[port], extras.empty_words[port]});
    }
    tell_picture(extras.note_picture, {extras.note_heading});
    tell_picture(extras.hint_icon, {});
}
