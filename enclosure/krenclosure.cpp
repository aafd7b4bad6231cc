// krenclosure: the command that works the emulated enclosures.
#include "enclosure/command_actions.h"
#include "enclosure/problem.h"
#include "enclosure/scenario.h"
#include "enclosure/usbip_wire.h"
#include "enclosure/version.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <iostream>
#include <memory>
#include <vector>

namespace {

using namespace enclosure;

constexpr int usage_error = 2;

// What the chosen subcommand does with the service.
using action = std::function<void(service_client&)>;

// Adds a subcommand whose options live in a shared `Options`.
template<class Options, class Declare, class Perform>
void add(CLI::App& app, action& chosen, const char* name, const char* help, Declare declare,
         Perform perform) {
    const auto options = std::make_shared<Options>();
    CLI::App* const command = app.add_subcommand(name, help);
    declare(*command, *options);
    command->callback([&chosen, options, perform] {
        chosen = [options, perform](service_client& service) { perform(service, *options); };
    });
}

struct words {
    std::string enclosure;
    std::uint32_t bay = 0;
    std::string rest;
};

void take_enclosure(CLI::App& command, words& given) {
    command.add_option("enclosure", given.enclosure, "Name of the enclosure")->required();
}

void take_bay(CLI::App& command, words& given) {
    take_enclosure(command, given);
    command.add_option("bay", given.bay, "0 or 1")->required()->check(CLI::Range(0, 1));
}

void add_new(CLI::App& app, action& chosen) {
    add<new_options>(
        app, chosen, "new", "Make an enclosure",
        [](CLI::App& command, new_options& given) {
            command.add_option("name", given.name, "Its name")->required();
            auto* const usb =
                command.add_flag("--usb", given.usb, "On USB (unless told otherwise)");
            command.add_flag("--firewire", given.firewire, "On FireWire")->excludes(usb);
            command.add_option("--serial", given.serial, "USB serial number");
            command.add_option("--vendor-id", given.vendor_id, "USB vendor id");
            command.add_option("--product-id", given.product_id, "USB product id");
            command.add_option("--location", given.location, "USB socket, 32 bits");
            command.add_option("--guid", given.guid, "FireWire GUID, 64 bits");
            command.add_option("--product", given.product, "INQUIRY product text");
            command.add_option("--restart-delay", given.restart_delay,
                               "Milliseconds off the bus at a restart (1000)");
        },
        make_enclosure);
}

void add_disk(CLI::App& app, action& chosen) {
    add<disk_options>(
        app, chosen, "disk", "Make a disk and lay it on the shelf",
        [](CLI::App& command, disk_options& given) {
            command.add_option("name", given.name, "Its name")->required();
            auto* const source = command.add_option_group("source");
            source->add_option("--size", given.size, "As in 2TB or 500GB, or in sectors");
            source->add_option(
                "--identify", given.identify_file,
                "IDENTIFY block of 512 bytes or 1024 hexadecimal digits, served as it is");
            source->required();
            source->require_option(1);
            command.add_option("--model", given.model, "Model text");
            command.add_option("--serial", given.serial, "Serial number");
            command.add_option("--addressing", given.addressing, "48, 28 or chs")
                ->check(CLI::IsMember({"48", "28", "chs"}));
        },
        make_disk);
}

void add_bays(CLI::App& app, action& chosen) {
    add<words>(
        app, chosen, "insert", "Put a disk into a bay",
        [](CLI::App& command, words& given) {
            take_bay(command, given);
            command.add_option("disk", given.rest, "Name of the disk")->required();
        },
        [](service_client& service, const words& given) {
            insert_disk(service, given.enclosure, given.bay, given.rest);
        });
    add<words>(app, chosen, "pull", "Take the disk out of a bay", take_bay,
               [](service_client& service, const words& given) {
                   pull_disk(service, given.enclosure, given.bay);
               });
}

void add_bus(CLI::App& app, action& chosen) {
    const auto simple = [&](const char* name, const char* help,
                            void (*perform)(service_client&, const std::string&)) {
        add<words>(app, chosen, name, help, take_enclosure,
                   [perform](service_client& service, const words& given) {
                       perform(service, given.enclosure);
                   });
    };
    simple("plug", "Plug an enclosure in", plug_in);
    simple("unplug", "Unplug an enclosure", unplug);
    simple("warmboot", "Restart the chip of an enclosure", warm_boot);
    simple("power-cut", "Cut the power of an enclosure for a moment; unflushed writes are lost",
           power_cut);
}

void add_export(CLI::App& app, action& chosen) {
    add<export_options>(
        app, chosen, "export", "Export an unplugged enclosure over USB/IP, for a kernel to attach",
        [](CLI::App& command, export_options& given) {
            given.port = usbip::usual_port;
            command.add_option("enclosure", given.enclosure, "Name of the enclosure")->required();
            command.add_option("--port", given.port, "TCP port, within this machine (3240)");
        },
        begin_export);
    add<words>(
        app, chosen, "unexport", "End an export", take_enclosure,
        [](service_client& service, const words& given) { end_export(service, given.enclosure); });
}

void add_trials(CLI::App& app, action& chosen) {
    add<words>(
        app, chosen, "rate", "Set how fast the chip copies a mirror",
        [](CLI::App& command, words& given) {
            take_enclosure(command, given);
            command.add_option("rate", given.rest, "MB/s, or unlimited")->required();
        },
        [](service_client& service, const words& given) {
            set_rate(service, given.enclosure, given.rest);
        });
    add<words>(
        app, chosen, "scenario", "Put the disks of an unplugged enclosure into a state",
        [](CLI::App& command, words& given) {
            take_enclosure(command, given);
            command.add_option("state", given.rest, "The state")
                ->required()
                ->check(CLI::IsMember(
                    std::vector<std::string>(scenario_names.begin(), scenario_names.end())));
        },
        [](service_client& service, const words& given) {
            arrange(service, given.enclosure, given.rest);
        });
}

void add_fault(CLI::App& app, action& chosen) {
    add<fault_options>(
        app, chosen, "fault", "Give an enclosure a fault, or take all away",
        [](CLI::App& command, fault_options& given) {
            command.add_option("enclosure", given.enclosure, "Name of the enclosure")->required();
            auto* const kind = command.add_option(
                "kind", given.kind, "fail, flip, drop, delay, time-out, tear or clear");
            kind->required()->check(
                CLI::IsMember({"fail", "flip", "drop", "delay", "time-out", "tear", "clear"}));
            command.add_option("operation", given.operation, "read, write, flush or identify")
                ->check(CLI::IsMember({"read", "write", "flush", "identify"}));
            command.add_option("--port", given.port, "0 or 1 (both)");
            command.add_option("--lba", given.first_lba, "First sector concerned (all)");
            command.add_option("--last-lba", given.last_lba, "Last sector concerned (--lba)");
            command.add_option("--nth", given.nth, "Only the nth time (every time)");
            command.add_option("--byte", given.byte,
                               "flip: byte of the sector, tear: bytes that are written (0)");
            command.add_option("--delay", given.delay, "delay: milliseconds (1000)");
        },
        change_faults);
}

void add_whole(CLI::App& app, action& chosen) {
    add<words>(
        app, chosen, "remove", "Remove an enclosure, or a disk with its image",
        [](CLI::App& command, words& given) {
            command.add_option("name", given.rest, "Its name")->required();
        },
        [](service_client& service, const words& given) { remove(service, given.rest); });
    add<bool>(
        app, chosen, "list", "Show enclosures and disks",
        [](CLI::App& command, bool& json) { command.add_flag("--json", json, "As JSON"); },
        [](service_client& service, bool json) { list(service, json); });
    add<words>(
        app, chosen, "demo", "Make and plug in a set of examples", [](CLI::App&, words&) {},
        [](service_client& service, const words&) { demo(service); });
}

int perform(const action& chosen) {
    try {
        service_client service;
        chosen(service);
        return 0;
    } catch (const std::exception& trouble) {
        std::cerr << "krenclosure: " << trouble.what() << std::endl;
        return 1;
    }
}

int run(int argc, char** argv) {
    CLI::App app("Works the emulated enclosures of this session.");
    app.set_version_flag("--version", "krenclosure " KESTREL_VERSION);
    app.require_subcommand(1);
    action chosen;
    add_new(app, chosen);
    add_disk(app, chosen);
    add_bays(app, chosen);
    add_bus(app, chosen);
    add_export(app, chosen);
    add_trials(app, chosen);
    add_fault(app, chosen);
    add_whole(app, chosen);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : usage_error;
    }
    return perform(chosen);
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception&) {
        return 1; // not even the words are to be had
    }
}
