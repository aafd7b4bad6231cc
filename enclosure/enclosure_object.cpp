#include "enclosure/enclosure_object.h"

#include "enclosure/request_values.h"

#include <tuple>

namespace enclosure {

enclosure_object::enclosure_object(service_context& context, std::string name)
    : context_(context),
      name_(std::move(name)),
      object_(sdbus::createObject(context.connection, bus::enclosure_path(name_))) {
    object_->registerProperty("Name").onInterface(bus::enclosure_interface).withGetter([this] {
        return name_;
    });
    add_bay_methods();
    add_bus_methods();
    add_export_methods();
    add_trial_methods();
    object_->finishRegistration();
    object_->emitInterfacesAddedSignal({bus::enclosure_interface});
}

enclosure_object::~enclosure_object() {
    try {
        object_->emitInterfacesRemovedSignal({bus::enclosure_interface});
    } catch (const sdbus::Error&) {
        // The bus has gone, and everyone who would hear it.
    }
}

void enclosure_object::add_bay_methods() {
    object_->registerMethod("Insert")
        .onInterface(bus::enclosure_interface)
        .withInputParamNames("bay", "disk")
        .implementedAs([this](const std::uint8_t& bay, const std::string& disk) {
            on_request([&] { context_.on.insert(name_, bay, disk); });
        });
    object_->registerMethod("Pull")
        .onInterface(bus::enclosure_interface)
        .withInputParamNames("bay")
        .withOutputParamNames("disk")
        .implementedAs([this](const std::uint8_t& bay) {
            return on_request([&] { return context_.on.pull(name_, bay); });
        });
}

void enclosure_object::add_bus_methods() {
    object_->registerMethod("Plug")
        .onInterface(bus::enclosure_interface)
        .withOutputParamNames("handle")
        .implementedAs([this] {
            return on_request([&] { return context_.on.plug(name_, context_.clock.now()); });
        });
    object_->registerMethod("Unplug").onInterface(bus::enclosure_interface).implementedAs([this] {
        on_request([&] { context_.on.unplug(name_); });
    });
    object_->registerMethod("WarmBoot").onInterface(bus::enclosure_interface).implementedAs([this] {
        on_request([&] { context_.on.warm_boot(name_, context_.clock.now()); });
    });
    object_->registerMethod("PowerCut").onInterface(bus::enclosure_interface).implementedAs([this] {
        on_request([&] { context_.on.power_cut(name_, context_.clock.now()); });
    });
    object_->registerMethod("SetRate")
        .onInterface(bus::enclosure_interface)
        .withInputParamNames("bytes_per_second")
        .implementedAs([this](const std::uint64_t& rate) {
            on_request([&] { context_.on.set_rate(name_, rate, context_.clock.now()); });
        });
}

void enclosure_object::add_export_methods() {
    object_->registerMethod("Export")
        .onInterface(bus::enclosure_interface)
        .withInputParamNames("port")
        .withOutputParamNames("busid", "port")
        .implementedAs([this](const std::uint16_t& port) {
            return on_request([&] {
                const usb_host::place at = context_.usb.begin(name_, port, context_.clock.now());
                return std::make_tuple(at.busid, at.port);
            });
        });
    object_->registerMethod("Unexport").onInterface(bus::enclosure_interface).implementedAs([this] {
        on_request([&] { context_.usb.end(name_); });
    });
}

void enclosure_object::add_trial_methods() {
    object_->registerMethod("AddFault")
        .onInterface(bus::enclosure_interface)
        .withInputParamNames("rule")
        .implementedAs([this](const bus::options& rule) {
            on_request([&] { context_.on.add_fault(name_, rule_from(rule)); });
        });
    object_->registerMethod("ClearFaults")
        .onInterface(bus::enclosure_interface)
        .withOutputParamNames("count")
        .implementedAs([this] {
            return on_request(
                [&] { return static_cast<std::uint32_t>(context_.on.clear_faults(name_)); });
        });
    object_->registerMethod("Arrange")
        .onInterface(bus::enclosure_interface)
        .withInputParamNames("scenario")
        .implementedAs([this](const std::string& state) {
            on_request([&] {
                const auto wanted = scenario_named(state);
                if (!wanted) {
                    throw problem("there is no scenario '" + printable(state) +
                                  "'; 'krenclosure scenario --help' lists them");
                }
                context_.on.arrange(name_, *wanted);
            });
        });
}

} // namespace enclosure
