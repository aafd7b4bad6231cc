// The set of examples.
#include "enclosure/command_actions.h"
#include "enclosure/desk_document.h"
#include "enclosure/problem.h"

#include <array>
#include <iostream>

namespace enclosure {

namespace {

using nlohmann::json;

struct example {
    const char* name;
    const char* product;
    bool firewire;
    std::int64_t location; // USB
    const char* size;
    const char* scenario;
};

// A pair to build an array from, a mirror in order, and a stripe in a socket whose location has
// its top bit set, which sorts it behind the others.
constexpr std::array<example, 3> examples = {{
    {"desk", "Kestrel Duo", false, 0x14200000, "500GB", "unconfigured"},
    {"studio", "Kestrel Studio", true, 0, "2TB", "raid1"},
    {"archive", "Kestrel Archive", false, 0xFA120000, "4TB", "raid0"},
}};

bool on_shelf(const json& desk, const std::string& name) {
    for (const json& one : desk.at("shelf")) {
        if (one.at("disk") == name) {
            return true;
        }
    }
    return false;
}

void make_pair(service_client& service, const json& desk, const example& one) {
    for (const std::uint32_t bay : {0U, 1U}) {
        disk_options disk;
        disk.name = std::string(one.name) + (bay == 0 ? "-a" : "-b");
        disk.size = one.size;
        disk.model = std::string(one.product) + " Disk";
        if (!on_shelf(desk, disk.name)) {
            make_disk(service, disk);
        }
        insert_disk(service, one.name, bay, disk.name);
    }
}

void make_example(service_client& service, const json& desk, const example& one) {
    new_options options;
    options.name = one.name;
    options.firewire = one.firewire;
    options.product = one.product;
    if (!one.firewire) {
        options.location = one.location;
        options.serial = std::string("EMU-") + one.name;
    }
    make_enclosure(service, options);
    make_pair(service, desk, one);
    arrange(service, one.name, one.scenario);
    plug_in(service, one.name);
}

} // namespace

void demo(service_client& service) {
    const json desk = json::parse(service.describe());
    for (const example& one : examples) {
        const json* const there = enclosure_in(desk, one.name);
        if (there == nullptr) {
            make_example(service, desk, one);
        } else if (!there->at("plugged").get<bool>()) {
            plug_in(service, one.name);
        } else if (!there->at("exported").is_null()) {
            std::cout << "'" << one.name << "' is exported" << std::endl;
        } else {
            std::cout << "'" << one.name << "' is plugged in already" << std::endl;
        }
    }
}

} // namespace enclosure
