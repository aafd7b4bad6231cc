#include "enclosure/state_json.h"

#include "enclosure/hex.h"
#include "enclosure/problem.h"

#include <nlohmann/json.hpp>

#include <limits>

namespace enclosure {

namespace {

using nlohmann::json;

constexpr int format = 1;
constexpr std::uint64_t any32 = std::numeric_limits<std::uint32_t>::max();
constexpr std::uint64_t any64 = std::numeric_limits<std::uint64_t>::max();

json parse(const std::string& text) {
    json value = json::parse(text, nullptr, false);
    if (!value.is_object() || value.value("format", json()) != format) {
        throw problem("it is no state file of this service");
    }
    return value;
}

const json& field(const json& from, const char* name) {
    const auto found = from.find(name);
    if (found == from.end()) {
        throw problem(std::string("'") + name + "' is missing");
    }
    return *found;
}

std::uint64_t number(const json& from, const char* name, std::uint64_t most) {
    const json& value = field(from, name);
    if (!value.is_number_unsigned() || value.get<std::uint64_t>() > most) {
        throw problem(std::string("'") + name + "' is no number in range");
    }
    return value.get<std::uint64_t>();
}

std::int32_t signed_number(const json& from, const char* name) {
    using limits = std::numeric_limits<std::int32_t>;
    const json& value = field(from, name);
    const bool fits = value.is_number_unsigned()
                          ? value.get<std::uint64_t>() <= std::uint64_t{limits::max()}
                          : value.is_number_integer() && value.get<std::int64_t>() >= limits::min();
    if (!fits) {
        throw problem(std::string("'") + name + "' is no number in range");
    }
    return value.get<std::int32_t>();
}

std::string text(const json& from, const char* name) {
    const json& value = field(from, name);
    if (!value.is_string()) {
        throw problem(std::string("'") + name + "' is no text");
    }
    return value.get<std::string>();
}

bool truth(const json& from, const char* name) {
    const json& value = field(from, name);
    if (!value.is_boolean()) {
        throw problem(std::string("'") + name + "' is neither true nor false");
    }
    return value.get<bool>();
}

json bays_json(const cabinet& what) {
    json names = json::array();
    for (int bay = 0; bay < ports; ++bay) {
        const std::shared_ptr<disk>& there = what.disks().at(bay);
        names.push_back(there ? json(there->name()) : json());
    }
    return names;
}

std::array<std::string, ports> bays_from(const json& from) {
    const json& bays = field(from, "bays");
    if (!bays.is_array() || bays.size() != ports) {
        throw problem("'bays' does not name two bays");
    }
    std::array<std::string, ports> names;
    for (std::size_t bay = 0; bay < names.size(); ++bay) {
        if (bays[bay].is_string()) {
            names[bay] = bays[bay].get<std::string>();
        }
    }
    return names;
}

json identity_json(const raw_identity& disk) {
    return {{"serial", to_hex(disk.serial)}, {"model", to_hex(disk.model)}};
}

json copy_json(const kept_copy& copy) {
    json members = json::array();
    for (const copy_pair::member& one : copy.between.members) {
        json member = identity_json(one.disk);
        member["stamp"] = to_hex(one.stamp);
        members.push_back(std::move(member));
    }
    return {{"source", copy.progress.source},
            {"sectors", copy.progress.sectors},
            {"done", copy.progress.done},
            {"between", members}};
}

void bytes_from(const json& from, const char* name, byte_room bytes) {
    if (!from_hex(text(from, name), bytes)) {
        throw problem(std::string("'") + name + "' has not its hexadecimal digits");
    }
}

raw_identity identity_from(const json& from) {
    raw_identity disk;
    bytes_from(from, "serial", disk.serial);
    bytes_from(from, "model", disk.model);
    return disk;
}

copy_pair pair_from(const json& from) {
    const json& members = field(from, "between");
    copy_pair pair;
    if (!members.is_array() || members.size() != pair.members.size()) {
        throw problem("'between' does not describe two disks");
    }
    for (std::size_t port = 0; port < pair.members.size(); ++port) {
        pair.members[port].disk = identity_from(members[port]);
        bytes_from(members[port], "stamp", pair.members[port].stamp);
    }
    return pair;
}

std::optional<kept_copy> copy_from(const json& from) {
    const json& copy = field(from, "copy");
    if (copy.is_null()) {
        return std::nullopt;
    }
    copy_progress progress;
    progress.source = static_cast<int>(number(copy, "source", ports - 1));
    progress.sectors = number(copy, "sectors", any64);
    progress.done = number(copy, "done", progress.sectors);
    check_disk_size(progress.sectors);
    return kept_copy{progress, pair_from(copy)};
}

// Files of earlier versions do not have it.
std::optional<raw_identity> unfilled_from(const json& from) {
    const auto found = from.find("unfilled");
    return found == from.end() || found->is_null() ? std::nullopt
                                                   : std::optional(identity_from(*found));
}

bus_kind bus_from(const json& from) {
    const std::string name = text(from, "bus");
    if (name != "USB" && name != "FireWire") {
        throw problem("'bus' is neither USB nor FireWire");
    }
    return name == "USB" ? bus_kind::usb : bus_kind::firewire;
}

void settings_from(const json& from, cabinet_settings& settings) {
    settings.bus = bus_from(from);
    settings.vendor_id = static_cast<std::uint16_t>(number(from, "vendor_id", 0xFFFF));
    settings.product_id = static_cast<std::uint16_t>(number(from, "product_id", 0xFFFF));
    if (settings.bus == bus_kind::usb) {
        settings.location = signed_number(from, "location");
    } else {
        settings.guid = number(from, "guid", any64);
    }
    settings.serial = text(from, "serial");
    settings.product = text(from, "product");
    settings.restart_delay = std::chrono::milliseconds(number(from, "restart_delay_ms", any32));
    check_settings(settings);
}

} // namespace

std::string enclosure_to_json(const cabinet& what, const std::optional<kept_copy>& copy) {
    const cabinet_settings& settings = what.settings();
    const std::optional<raw_identity> unfilled = what.bridge_chip().unfilled();
    const json state = {{"format", format},
                        {"bus", settings.bus == bus_kind::usb ? "USB" : "FireWire"},
                        {"vendor_id", settings.vendor_id},
                        {"product_id", settings.product_id},
                        {"location", settings.location.value_or(0)},
                        {"guid", settings.guid.value_or(0)},
                        {"serial", settings.serial},
                        {"product", settings.product},
                        {"restart_delay_ms", settings.restart_delay.count()},
                        {"bays", bays_json(what)},
                        {"plugged", what.plugged() && !what.export_number()},
                        {"rate", what.bridge_chip().copy().rate()},
                        {"last_handle", what.last_handle()},
                        {"copy", copy ? copy_json(*copy) : json()},
                        {"unfilled", unfilled ? identity_json(*unfilled) : json()}};
    return state.dump(2) + "\n";
}

std::string disk_to_json(const disk& which) {
    return json{{"format", format}, {"identify", to_hex(which.identity())}}.dump(2) + "\n";
}

std::string next_handle_to_json(std::uint32_t next) {
    return json{{"format", format}, {"next_handle", next}}.dump(2) + "\n";
}

desk::former_cabinet enclosure_from_json(const std::string& content, const std::string& name) {
    const json from = parse(content);
    desk::former_cabinet former;
    former.settings.name = name;
    settings_from(from, former.settings);
    former.disks = bays_from(from);
    former.plugged = truth(from, "plugged");
    former.rate = number(from, "rate", mirror_copy::highest_rate);
    former.last_handle = static_cast<std::uint32_t>(number(from, "last_handle", last_handle));
    former.copy = copy_from(from);
    former.unfilled = unfilled_from(from);
    return former;
}

identify_block disk_from_json(const std::string& content) {
    return parse_identify(text(parse(content), "identify"), "'identify'");
}

std::uint32_t next_handle_from_json(const std::string& content) {
    return static_cast<std::uint32_t>(number(parse(content), "next_handle", last_handle));
}

} // namespace enclosure
