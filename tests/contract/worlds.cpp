#include "tests/contract/worlds.h"

void in_process_world::add_enclosure(const std::string& name, bool firewire) {
    enclosure::cabinet_settings settings;
    settings.name = name;
    settings.bus = firewire ? enclosure::bus_kind::firewire : enclosure::bus_kind::usb;
    settings.restart_delay = std::chrono::milliseconds(10);
    bench_.add_enclosure(settings);
}

std::uint32_t in_process_world::handle_after_restart(const std::string& name, std::uint32_t) {
    bench_.advance(std::chrono::milliseconds(10));
    return bench_.handle_of(name);
}

void service_world::add_enclosure(const std::string& name, bool firewire) {
    host_.client().add_enclosure(
        {{"Name", sdbus::Variant(name)},
         {"Bus", sdbus::Variant(std::string(firewire ? "FireWire" : "USB"))},
         {"RestartDelay", sdbus::Variant(std::uint32_t{10})}});
}

void service_world::add_failing_reads(const std::string& name) {
    host_.client().add_fault(name, {{"Kind", sdbus::Variant(std::string("fail"))},
                                    {"Operation", sdbus::Variant(std::string("read"))}});
}
