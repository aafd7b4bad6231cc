// To the bridges of the host service only.
#include "enclosure/library_way.h"

#include "enclosure/dbus_transport.h"

namespace enclosure {

transport& library_way() {
    static dbus_transport* const way = new dbus_transport;
    return *way;
}

} // namespace enclosure
