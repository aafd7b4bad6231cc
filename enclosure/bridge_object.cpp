#include "enclosure/bridge_object.h"

namespace enclosure {

namespace {

constexpr std::size_t most_data = 65536; // bytes in or out of one command

} // namespace

bridge_object::bridge_object(service_context& context, const bridge& what)
    : context_(context),
      what_(what),
      object_(sdbus::createObject(context.connection, bus::bridge_path(what.handle))) {
    add_properties();
    object_->registerMethod("Execute")
        .onInterface(bus::bridge_interface)
        .withInputParamNames("cdb", "allocation", "data_out")
        .withOutputParamNames("status", "sense", "data_in")
        .implementedAs([this](answer&& result, const std::vector<std::uint8_t>& cdb,
                              const std::uint32_t& allocation,
                              const std::vector<std::uint8_t>& data_out) {
            execute(std::move(result), cdb, allocation, data_out);
        });
    object_->finishRegistration();
    object_->emitInterfacesAddedSignal({bus::bridge_interface});
}

bridge_object::~bridge_object() {
    try {
        object_->emitInterfacesRemovedSignal({bus::bridge_interface});
    } catch (const sdbus::Error&) {
        // The bus has gone, and everyone who would hear it.
    }
}

void bridge_object::add_properties() {
    const auto add = [this](const char* name, auto member) {
        object_->registerProperty(name)
            .onInterface(bus::bridge_interface)
            .withGetter([this, member] { return what_.*member; });
    };
    add("Handle", &bridge::handle);
    object_->registerProperty("Bus").onInterface(bus::bridge_interface).withGetter([this] {
        return std::string(what_.bus == bus_kind::usb ? "USB" : "FireWire");
    });
    add("VendorId", &bridge::vendor_id);
    add("ProductId", &bridge::product_id);
    add("LocationId", &bridge::location);
    add("Serial", &bridge::serial);
    add("Guid", &bridge::guid);
    add("Name", &bridge::name);
}

void bridge_object::execute(answer&& result, const std::vector<std::uint8_t>& cdb,
                            std::uint32_t allocation, const std::vector<std::uint8_t>& data_out) {
    if (cdb.size() > longest_cdb || data_out.size() > most_data || allocation > most_data) {
        throw sdbus::Error(bus::error_name,
                           "a command has at most 16 bytes, its data at most 65536");
    }
    const std::optional<scsi_reply> reply =
        context_.on.execute(what_.handle, cdb, data_out, allocation);
    if (!reply) {
        throw sdbus::Error(bus::error_name, "the bridge has left the bus");
    }
    if (reply->unanswered) {
        return; // the caller waits as long as it likes; nothing is kept for it here
    }
    const auto status = static_cast<std::uint8_t>(reply->status);
    if (reply->delay == moment{0}) {
        result.returnResults(status, reply->sense, reply->data_in);
        return;
    }
    const auto kept = std::make_shared<answer>(std::move(result));
    context_.later.emplace(context_.clock.now() + reply->delay, [kept, status, reply] {
        kept->returnResults(status, reply->sense, reply->data_in);
    });
}

} // namespace enclosure
