// To the bridges of the host service and to real ones.
#include "enclosure/library_way.h"

#include "enclosure/dbus_transport.h"
#include "enclosure/joined_transport.h"
#include "enclosure/kernel_sg_nodes.h"
#include "enclosure/sg_transport.h"

namespace enclosure {

namespace {

struct ways {
    dbus_transport emulated;
    kernel_sg_nodes nodes;
    sg_transport real{nodes};
    joined_transport both{emulated, real};
};

} // namespace

transport& library_way() {
    static ways* const all = new ways;
    return all->both;
}

} // namespace enclosure
