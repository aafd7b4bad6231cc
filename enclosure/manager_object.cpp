#include "enclosure/manager_object.h"

#include "enclosure/desk_report.h"
#include "enclosure/option_reader.h"

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

} // namespace

manager_object::manager_object(service_context& context)
    : context_(context), object_(sdbus::createObject(context.connection, bus::root)) {
    add_methods();
    object_->finishRegistration();
    object_->addObjectManager();
}

void manager_object::add_methods() {
    object_->registerMethod("AddEnclosure")
        .onInterface(bus::manager_interface)
        .withInputParamNames("settings")
        .implementedAs([this](const bus::options& settings) {
            on_request([&] { context_.on.add_enclosure(settings_from(settings)); });
        });
    object_->registerMethod("RemoveEnclosure")
        .onInterface(bus::manager_interface)
        .withInputParamNames("name")
        .implementedAs([this](const std::string& name) {
            on_request([&] { context_.on.remove_enclosure(name); });
        });
    object_->registerMethod("AddDisk")
        .onInterface(bus::manager_interface)
        .withInputParamNames("name", "identify")
        .implementedAs([this](const std::string& name, const std::vector<std::uint8_t>& identify) {
            on_request([&] { context_.on.add_disk(name, identity_from(identify)); });
        });
    object_->registerMethod("RemoveDisk")
        .onInterface(bus::manager_interface)
        .withInputParamNames("name")
        .implementedAs([this](const std::string& name) {
            on_request([&] { context_.on.remove_disk(name); });
        });
    object_->registerMethod("Describe")
        .onInterface(bus::manager_interface)
        .withOutputParamNames("json")
        .implementedAs([this] { return report(context_.on, context_.usb.port()); });
}

} // namespace enclosure
