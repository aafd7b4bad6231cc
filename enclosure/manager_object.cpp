#include "enclosure/manager_object.h"

#include "enclosure/desk_report.h"
#include "enclosure/request_values.h"

namespace enclosure {

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
