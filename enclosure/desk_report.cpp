#include "enclosure/desk_report.h"

#include "enclosure/busid.h"
#include "enclosure/names.h"

#include <nlohmann/json.hpp>

namespace enclosure {

namespace {

using nlohmann::json;

json of_disk(const disk& which) {
    return {{"disk", which.name()},
            {"model", printable(identify_model(which.identity()))},
            {"serial", printable(identify_serial(which.identity()))},
            {"sectors", which.sectors()},
            {"present", which.answers() && identify_counts(which.identity())},
            {"missing", which.missing().empty() ? json() : json(printable(which.missing()))}};
}

json of_bays(const cabinet& what) {
    json bays = json::array();
    for (int bay = 0; bay < ports; ++bay) {
        const std::shared_ptr<disk>& there = what.disks().at(bay);
        bays.push_back(there ? of_disk(*there) : json());
    }
    return bays;
}

json of_array(const chip& bridge_chip) {
    const volume seen = bridge_chip.presented();
    return {
        {"mode", name_of(seen.kind)}, {"state", name_of(seen.state)}, {"sectors", seen.sectors}};
}

json of_copy(const mirror_copy& copy) {
    const auto& progress = copy.progress();
    if (!progress) {
        return nullptr;
    }
    return {{"source", progress->source},
            {"end", progress->sectors - 1},
            {"current", progress->done == 0 ? 0 : progress->done - 1},
            {"running", copy.running()}};
}

json of_export(const cabinet& what, std::optional<std::uint16_t> port) {
    if (!what.export_number() || !port) {
        return nullptr;
    }
    return {{"busid", busid_of(*what.export_number())}, {"port", *port}};
}

json of_enclosure(const cabinet& what, std::optional<std::uint16_t> usbip_port) {
    const cabinet_settings& settings = what.settings();
    const bool usb = settings.bus == bus_kind::usb;
    const bool on = what.handle().has_value();
    return {{"name", settings.name},
            {"bus", usb ? "USB" : "FireWire"},
            {"product", settings.product},
            {"vendor_id", usb ? json(settings.vendor_id) : json()},
            {"product_id", usb ? json(settings.product_id) : json()},
            {"serial", usb ? json(settings.serial) : json()},
            {"location", usb ? json(settings.location.value_or(0)) : json()},
            {"guid", usb ? json() : json(settings.guid.value_or(0))},
            {"plugged", what.plugged()},
            {"exported", of_export(what, usbip_port)},
            {"handle", on ? json(*what.handle()) : json()},
            {"bays", of_bays(what)},
            {"array", on ? of_array(what.bridge_chip()) : json()},
            {"copy", on ? of_copy(what.bridge_chip().copy()) : json()},
            {"rate", what.bridge_chip().copy().rate()},
            {"faults", what.faults().size()}};
}

} // namespace

std::string report(const desk& of, std::optional<std::uint16_t> usbip_port) {
    json enclosures = json::array();
    for (const auto& [name, what] : of.enclosures()) {
        enclosures.push_back(of_enclosure(*what, usbip_port));
    }
    json shelf = json::array();
    for (const auto& [name, which] : of.disks()) {
        if (!of.place_of(name)) {
            shelf.push_back(of_disk(*which));
        }
    }
    return json{{"enclosures", enclosures}, {"shelf", shelf}}.dump(2) + "\n";
}

} // namespace enclosure
