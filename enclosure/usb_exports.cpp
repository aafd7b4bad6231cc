#include "enclosure/usb_exports.h"

#include "enclosure/busid.h"

#include <algorithm>

namespace enclosure {

usb_exports::finding usb_exports::look_at(const cabinet& what) const {
    const cabinet_settings& settings = what.settings();
    const std::uint32_t number = *what.export_number();
    finding found;
    found.device = {"/" + settings.name, busid_of(number),   export_bus, number,
                    settings.vendor_id,  settings.product_id};
    found.identity = {settings.vendor_id, settings.product_id, std::string(inquiry_vendor),
                      settings.product, settings.serial};
    if (!what.handle()) {
        found.state = presence::restarting;
        return found;
    }
    found.handle = *what.handle();
    found.state = taken_.contains(found.handle) ? presence::taken : presence::free;
    return found;
}

std::vector<usbip::device> usb_exports::devices() const {
    std::vector<usbip::device> all;
    for (const auto& [name, what] : on_.enclosures()) {
        if (!what->export_number()) {
            continue;
        }
        if (const finding found = look_at(*what); found.state == presence::free) {
            all.push_back(found.device);
        }
    }
    return all;
}

usb_exports::finding usb_exports::find(std::string_view busid) const {
    for (const auto& [name, what] : on_.enclosures()) {
        if (what->export_number() && busid_of(*what->export_number()) == busid) {
            return look_at(*what);
        }
    }
    return {};
}

bool usb_exports::is_there(std::uint32_t handle) const {
    return std::any_of(on_.enclosures().begin(), on_.enclosures().end(), [&](const auto& entry) {
        return entry.second->export_number() && entry.second->handle() == handle;
    });
}

} // namespace enclosure
