#include "util/library.h"

bool controller_t::operator==(const controller_t& other) const {
    if (firewire != other.firewire) {
        return false;
    }
    if (firewire) {
        return guid == other.guid;
    }
    return vendor_id == other.vendor_id && product_id == other.product_id &&
           location_id == other.location_id;
}

void controller_t::clear() {
    firewire = false;
    product_id = 0;
    serial.clear();
    guid = 0;
    id = 0;
}
