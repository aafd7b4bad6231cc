#include "enclosure/command_actions.h"

#include "enclosure/desk_document.h"
#include "enclosure/problem.h"
#include "enclosure/sizes.h"
#include "enclosure/usbip_wire.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <limits>

namespace enclosure {

namespace {

void say(const std::string& line) {
    std::cout << line << std::endl;
}

std::string hex(std::uint64_t value) {
    std::array<char, 32> digits{};
    std::snprintf(digits.data(), digits.size(), "0x%08llX", static_cast<unsigned long long>(value));
    return digits.data();
}

template<class Value>
void put(bus::options& to, const char* name, const std::optional<Value>& value) {
    if (value) {
        to[name] = sdbus::Variant(*value);
    }
}

std::uint8_t bay_of(std::uint32_t bay) {
    return static_cast<std::uint8_t>(std::min<std::uint32_t>(bay, 0xFF));
}

std::optional<std::int32_t> location_of(const std::optional<std::int64_t>& location) {
    if (!location) {
        return std::nullopt;
    }
    if (*location < std::numeric_limits<std::int32_t>::min() ||
        *location > std::numeric_limits<std::uint32_t>::max()) {
        throw problem("location " + std::to_string(*location) +
                      " does not fit; give a 32-bit number such as 0x14100000");
    }
    return static_cast<std::int32_t>(*location);
}

std::string read_file(const std::string& path) {
    constexpr std::streamsize most = 16384;
    std::ifstream file(path, std::ios::binary);
    std::string content(static_cast<std::size_t>(most), '\0');
    file.read(content.data(), most);
    if (file.bad() || file.gcount() == 0) {
        throw problem("cannot read " + printable(path) + "; give a file with an IDENTIFY block");
    }
    content.resize(static_cast<std::size_t>(file.gcount()));
    return content;
}

addressing addressing_of(const std::string& name) {
    if (name == "48") {
        return addressing::lba48;
    }
    return name == "28" ? addressing::lba28 : addressing::chs;
}

identify_block identity_for(const disk_options& options) {
    if (!options.identify_file.empty()) {
        return parse_identify(read_file(options.identify_file), printable(options.identify_file));
    }
    disk_label label;
    label.model = options.model;
    label.serial = options.serial.empty() ? options.name.substr(0, 20) : options.serial;
    label.sectors = sectors_of(options.size);
    label.mode = addressing_of(options.addressing);
    return build_identify(label);
}

bool is_enclosure(service_client& service, const std::string& name) {
    return enclosure_in(nlohmann::json::parse(service.describe()), name) != nullptr;
}

} // namespace

void make_enclosure(service_client& service, const new_options& options) {
    bus::options settings;
    settings["Name"] = sdbus::Variant(options.name);
    settings["Bus"] = sdbus::Variant(std::string(options.firewire ? "FireWire" : "USB"));
    settings["Serial"] = sdbus::Variant(options.serial);
    put(settings, "VendorId", options.vendor_id);
    put(settings, "ProductId", options.product_id);
    put(settings, "LocationId", location_of(options.location));
    put(settings, "Guid", options.guid);
    put(settings, "Product", options.product);
    put(settings, "RestartDelay", options.restart_delay);
    service.add_enclosure(settings);
    say("made " + std::string(options.firewire ? "FireWire" : "USB") + " enclosure '" +
        options.name + "'");
}

void make_disk(service_client& service, const disk_options& options) {
    const identify_block identity = identity_for(options);
    service.add_disk(options.name, identity);
    const std::uint64_t sectors = identify_sectors(identity);
    say("made disk '" + options.name + "': " + std::to_string(sectors) + " sectors (" +
        size_text(sectors) + ")");
}

void insert_disk(service_client& service, const std::string& enclosure, std::uint32_t bay,
                 const std::string& disk) {
    service.insert(enclosure, bay_of(bay), disk);
    say("put disk '" + disk + "' into bay " + std::to_string(bay) + " of '" + enclosure + "'");
}

void pull_disk(service_client& service, const std::string& enclosure, std::uint32_t bay) {
    const std::string disk = service.pull(enclosure, bay_of(bay));
    say("pulled disk '" + disk + "' out of bay " + std::to_string(bay) + " of '" + enclosure + "'");
}

void plug_in(service_client& service, const std::string& enclosure) {
    const std::uint32_t handle = service.plug(enclosure);
    say("plugged in '" + enclosure + "': handle " + hex(handle));
}

void unplug(service_client& service, const std::string& enclosure) {
    service.unplug(enclosure);
    say("unplugged '" + enclosure + "'");
}

void begin_export(service_client& service, const export_options& options) {
    const export_place place = service.begin_export(options.enclosure, options.port);
    const bool usual = place.port == usbip::usual_port;
    const std::string port = std::to_string(place.port);
    say("exported '" + options.enclosure + "' over USB/IP as " + place.busid + " on port " + port);
    say("attach it with: sudo usbip " + (usual ? "" : "--tcp-port " + port + " ") +
        "attach --remote 127.0.0.1 --busid " + place.busid);
    say("after each restart of its chip it has to be attached again");
}

void end_export(service_client& service, const std::string& enclosure) {
    service.end_export(enclosure);
    say("ended the export of '" + enclosure + "'");
}

void warm_boot(service_client& service, const std::string& enclosure) {
    service.warm_boot(enclosure);
    say("restarted the chip of '" + enclosure + "'");
}

void power_cut(service_client& service, const std::string& enclosure) {
    service.power_cut(enclosure);
    say("cut the power of '" + enclosure + "'; it comes back by itself");
}

void set_rate(service_client& service, const std::string& enclosure, const std::string& rate) {
    const std::uint64_t bytes_per_second = rate_of(rate);
    service.set_rate(enclosure, bytes_per_second);
    say("'" + enclosure + "' copies " +
        (bytes_per_second == 0 ? "without limit" : "at " + rate + " MB/s"));
}

void change_faults(service_client& service, const fault_options& options) {
    if (options.kind == "clear") {
        const std::uint32_t count = service.clear_faults(options.enclosure);
        say("took " + std::to_string(count) + (count == 1 ? " fault" : " faults") + " away from '" +
            options.enclosure + "'");
        return;
    }
    bus::options rule;
    rule["Kind"] = sdbus::Variant(options.kind);
    rule["Operation"] = sdbus::Variant(options.operation);
    put(rule, "Port", options.port);
    put(rule, "FirstLba", options.first_lba);
    put(rule, "LastLba", options.last_lba ? options.last_lba : options.first_lba);
    put(rule, "Nth", options.nth);
    put(rule, "Byte", options.byte);
    put(rule, "Delay", options.delay);
    service.add_fault(options.enclosure, rule);
    say("'" + options.enclosure + "' has a fault: " + options.kind + " " + options.operation);
}

void arrange(service_client& service, const std::string& enclosure, const std::string& scenario) {
    service.arrange(enclosure, scenario);
    say("put the disks of '" + enclosure + "' into the state '" + scenario + "'");
}

void remove(service_client& service, const std::string& name) {
    if (is_enclosure(service, name)) {
        service.remove_enclosure(name);
        say("removed enclosure '" + name + "'; its disks are on the shelf");
    } else {
        service.remove_disk(name);
        say("removed disk '" + name + "' and its image");
    }
}

} // namespace enclosure
