#include "enclosure/request_values.h"

#include "enclosure/names.h"
#include "enclosure/option_reader.h"
#include "enclosure/problem.h"

#include <algorithm>
#include <limits>

namespace enclosure {

namespace {

std::uint16_t usb_id(std::uint32_t value, const char* what) {
    if (value > std::numeric_limits<std::uint16_t>::max()) {
        throw problem(std::string(what) + " id is out of range; take 0 to 65535");
    }
    return static_cast<std::uint16_t>(value);
}

bus_kind bus_named(const std::string& name) {
    if (name != "USB" && name != "FireWire") {
        throw problem("there is no bus '" + printable(name) + "'; take USB or FireWire");
    }
    return name == "USB" ? bus_kind::usb : bus_kind::firewire;
}

} // namespace

cabinet_settings settings_from(const bus::options& values) {
    option_reader reader(values);
    cabinet_settings settings;
    settings.name = reader.take<std::string>("Name").value_or("");
    settings.bus = bus_named(reader.take<std::string>("Bus").value_or("USB"));
    settings.vendor_id =
        usb_id(reader.take<std::uint32_t>("VendorId").value_or(usual_vendor_id), "vendor");
    settings.product_id =
        usb_id(reader.take<std::uint32_t>("ProductId").value_or(usual_product_id), "product");
    settings.location = reader.take<std::int32_t>("LocationId");
    settings.guid = reader.take<std::uint64_t>("Guid");
    settings.serial = reader.take<std::string>("Serial").value_or("");
    settings.product = reader.take<std::string>("Product").value_or(settings.product);
    if (const auto delay = reader.take<std::uint32_t>("RestartDelay")) {
        settings.restart_delay = std::chrono::milliseconds(*delay);
    }
    reader.finish();
    return settings;
}

identify_block identity_from(const std::vector<std::uint8_t>& bytes) {
    identify_block block{};
    if (bytes.size() != block.size()) {
        throw problem("an IDENTIFY block has 512 bytes, not " + std::to_string(bytes.size()));
    }
    std::copy(bytes.begin(), bytes.end(), block.begin());
    return block;
}

fault_rule rule_from(const bus::options& values) {
    option_reader reader(values);
    fault_rule rule;
    const auto kind = fault_kind_named(reader.take<std::string>("Kind").value_or(""));
    const auto operation = operation_named(reader.take<std::string>("Operation").value_or(""));
    if (!kind || !operation) {
        throw problem("fault: take fail, flip, drop, delay, time-out or tear for read, write, "
                      "flush or identify");
    }
    rule.kind = *kind;
    rule.operation = *operation;
    if (const auto port = reader.take<std::uint32_t>("Port")) {
        rule.port = static_cast<int>(std::min<std::uint32_t>(*port, ports));
    }
    rule.first_lba = reader.take<std::uint64_t>("FirstLba").value_or(rule.first_lba);
    rule.last_lba = reader.take<std::uint64_t>("LastLba").value_or(rule.last_lba);
    rule.nth = reader.take<std::uint32_t>("Nth").value_or(rule.nth);
    rule.byte = reader.take<std::uint32_t>("Byte").value_or(rule.byte);
    if (const auto delay = reader.take<std::uint32_t>("Delay")) {
        rule.delay = std::chrono::milliseconds(*delay);
    }
    reader.finish();
    return rule;
}

} // namespace enclosure
