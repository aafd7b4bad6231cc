// Enclosures that are exported instead of being plugged in.
#include "enclosure/desk.h"
#include "enclosure/problem.h"

#include <algorithm>

namespace enclosure {

void desk::check_export(const std::string& enclosure) const {
    const cabinet& what = cabinet_named(enclosure);
    if (what.settings().bus != bus_kind::usb) {
        throw problem("enclosure '" + enclosure +
                      "' is on FireWire, which USB/IP does not carry; make one on USB");
    }
    if (what.export_number()) {
        throw problem("enclosure '" + enclosure + "' is exported already; 'krenclosure unexport " +
                      enclosure + "' first");
    }
    if (what.plugged()) {
        throw problem("enclosure '" + enclosure + "' is plugged in; 'krenclosure unplug " +
                      enclosure + "' first");
    }
}

std::uint32_t desk::free_export_number() const {
    const auto taken = [this](std::uint32_t number) {
        return std::any_of(cabinets_.begin(), cabinets_.end(), [number](const auto& entry) {
            return entry.second->export_number() == number;
        });
    };
    std::uint32_t number = 1;
    while (taken(number)) {
        ++number;
    }
    return number;
}

std::uint32_t desk::begin_export(const std::string& enclosure, moment now) {
    check_export(enclosure);
    cabinet& what = cabinet_named(enclosure);
    const std::uint32_t number = free_export_number();
    what.begin_export(number, take_handle(), now);
    watcher_.enclosure_changed(enclosure);
    return number;
}

void desk::end_export(const std::string& enclosure) {
    if (!cabinet_named(enclosure).export_number()) {
        throw problem("enclosure '" + enclosure + "' is not exported; 'krenclosure export " +
                      enclosure + "' does it");
    }
    unplug(enclosure);
}

} // namespace enclosure
