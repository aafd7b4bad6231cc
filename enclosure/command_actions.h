// What the subcommands of krenclosure do and print.
#pragma once

#include "enclosure/service_client.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace enclosure {

struct new_options {
    std::string name;
    bool usb = false; // what it is anyway without `firewire`
    bool firewire = false;
    std::string serial;
    std::optional<std::uint32_t> vendor_id;
    std::optional<std::uint32_t> product_id;
    std::optional<std::int64_t> location; // 32 bits, signed or not
    std::optional<std::uint64_t> guid;
    std::optional<std::string> product;
    std::optional<std::uint32_t> restart_delay; // milliseconds
};

struct disk_options {
    std::string name;
    std::string size;
    std::string model = "Kestrel Example Disk";
    std::string serial; // empty: the name
    std::string addressing = "48";
    std::string identify_file; // empty: a block is made from the rest
};

struct fault_options {
    std::string enclosure;
    std::string kind; // or "clear"
    std::string operation;
    std::optional<std::uint32_t> port;
    std::optional<std::uint64_t> first_lba;
    std::optional<std::uint64_t> last_lba;
    std::optional<std::uint32_t> nth;
    std::optional<std::uint32_t> byte;
    std::optional<std::uint32_t> delay; // milliseconds
};

struct export_options {
    std::string enclosure;
    std::uint16_t port = 0; // TCP; 0: any
};

// Each makes one change and prints one line that says what it did, an export two more that say
// what to do next. Throws problem.
void make_enclosure(service_client& service, const new_options& options);
void make_disk(service_client& service, const disk_options& options);
void insert_disk(service_client& service, const std::string& enclosure, std::uint32_t bay,
                 const std::string& disk);
void pull_disk(service_client& service, const std::string& enclosure, std::uint32_t bay);
void plug_in(service_client& service, const std::string& enclosure);
void unplug(service_client& service, const std::string& enclosure);
void begin_export(service_client& service, const export_options& options);
void end_export(service_client& service, const std::string& enclosure);
void warm_boot(service_client& service, const std::string& enclosure);
void power_cut(service_client& service, const std::string& enclosure);
void set_rate(service_client& service, const std::string& enclosure, const std::string& rate);
void change_faults(service_client& service, const fault_options& options);
void arrange(service_client& service, const std::string& enclosure, const std::string& scenario);
void remove(service_client& service, const std::string& name); // enclosure or disk

// Prints the desk, as a table or as the service's JSON document.
void list(service_client& service, bool json);

// Makes and plugs in what is missing of the set of examples; prints a line for each.
void demo(service_client& service);

} // namespace enclosure
