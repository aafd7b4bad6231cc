// The desk, printed.
#include "enclosure/command_actions.h"
#include "enclosure/problem.h"
#include "enclosure/sizes.h"

#include <nlohmann/json.hpp>

#include <array>
#include <cstdio>
#include <iostream>

namespace enclosure {

namespace {

using nlohmann::json;

std::string hex(const char* pattern, std::uint64_t value) {
    std::array<char, 32> digits{};
    std::snprintf(digits.data(), digits.size(), pattern, static_cast<unsigned long long>(value));
    return digits.data();
}

std::string place_text(const json& enclosure) {
    if (enclosure.at("bus") == "FireWire") {
        return "FireWire, GUID " + hex("0x%016llX", enclosure.at("guid").get<std::uint64_t>());
    }
    const auto location = static_cast<std::uint32_t>(enclosure.at("location").get<std::int32_t>());
    return "USB, location " + hex("0x%08llX", location);
}

std::string state_text(const json& enclosure) {
    if (!enclosure.at("plugged").get<bool>()) {
        return "not plugged in";
    }
    std::string way;
    if (const json& exported = enclosure.at("exported"); !exported.is_null()) {
        way = "exported as " + exported.at("busid").get<std::string>() + " on port " +
              std::to_string(exported.at("port").get<std::uint16_t>()) + ", ";
    }
    if (enclosure.at("handle").is_null()) {
        return way + "restarting";
    }
    return way + "handle " + hex("0x%08llX", enclosure.at("handle").get<std::uint64_t>());
}

std::string disk_text(const json& disk) {
    std::string line = disk.at("disk").get<std::string>() + ": " +
                       disk.at("model").get<std::string>() + ", serial " +
                       disk.at("serial").get<std::string>() + ", " +
                       size_text(disk.at("sectors").get<std::uint64_t>());
    if (!disk.at("missing").is_null()) {
        line += ", counts as absent: " + disk.at("missing").get<std::string>();
    } else if (!disk.at("present").get<bool>()) {
        line += ", counts as absent: its IDENTIFY block has no signature";
    }
    return line;
}

std::string array_text(const json& enclosure) {
    const json& array = enclosure.at("array");
    std::string line = array.at("mode").get<std::string>() + ", " +
                       array.at("state").get<std::string>() + ", " +
                       size_text(array.at("sectors").get<std::uint64_t>());
    const json& copy = enclosure.at("copy");
    if (!copy.is_null()) {
        line += ", copy from bay " + std::to_string(copy.at("source").get<int>()) + ": LBA " +
                std::to_string(copy.at("current").get<std::uint64_t>()) + " of " +
                std::to_string(copy.at("end").get<std::uint64_t>());
    }
    return line;
}

void print_enclosure(const json& enclosure) {
    std::cout << enclosure.at("name").get<std::string>() << " (" << place_text(enclosure) << "; "
              << state_text(enclosure) << ")\n";
    const json& bays = enclosure.at("bays");
    for (std::size_t bay = 0; bay < bays.size(); ++bay) {
        std::cout << "  bay " << bay << "  "
                  << (bays[bay].is_null() ? "empty" : disk_text(bays[bay])) << "\n";
    }
    if (!enclosure.at("array").is_null()) {
        std::cout << "  array  " << array_text(enclosure) << "\n";
    }
    if (const auto faults = enclosure.at("faults").get<std::size_t>(); faults > 0) {
        std::cout << "  faults " << faults << "\n";
    }
}

} // namespace

void list(service_client& service, bool as_json) {
    const std::string described = service.describe();
    if (as_json) {
        std::cout << described << std::flush;
        return;
    }
    const json desk = json::parse(described);
    if (desk.at("enclosures").empty()) {
        std::cout << "no enclosures; 'krenclosure demo' makes some\n";
    }
    for (const json& enclosure : desk.at("enclosures")) {
        print_enclosure(enclosure);
    }
    for (const json& disk : desk.at("shelf")) {
        std::cout << "on the shelf  " << disk_text(disk) << "\n";
    }
    std::cout << std::flush;
}

} // namespace enclosure
