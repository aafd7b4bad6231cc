#include "device/emulated_bus.h"

#include "util/print.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>

namespace {

const std::string service = "org.kestrelraid.Enclosure1";
const std::string service_root = "/org/kestrelraid/Enclosure1";
const std::string bridge_folder = "/org/kestrelraid/Enclosure1/bridge/";
const std::string bridge_interface = "org.kestrelraid.Enclosure1.Bridge";
const std::string manager_interface = "org.freedesktop.DBus.ObjectManager";
const std::string bus_name = "org.freedesktop.DBus";
const std::string bus_path = "/org/freedesktop/DBus";

constexpr std::chrono::seconds answer_limit{5};
constexpr std::chrono::seconds ask_again_pause{1};
constexpr std::size_t most_bridges = 256;
constexpr std::size_t longest_name = 127;
constexpr std::size_t longest_serial = 255;

template<class Value>
Value property(const std::map<std::string, sdbus::Variant>& from, const char* name) {
    const auto found = from.find(name);
    return found != from.end() && found->second.containsValueOfType<Value>()
               ? found->second.get<Value>()
               : Value{};
}

// Makes `action` of a signal; one whose content has other types than it should says nothing.
template<class Action> void take_signal(Action action) {
    try {
        action();
    } catch (const sdbus::Error&) {
        return;
    }
}

std::string bounded(std::string text, std::size_t most) {
    text.resize(std::min(text.size(), most));
    return text;
}

// Nothing when the object does not describe a bridge that fits its path.
std::optional<bridge_identity>
bridge_in(const sdbus::ObjectPath& path,
          const std::map<std::string, std::map<std::string, sdbus::Variant>>& interfaces) {
    const auto described = interfaces.find(bridge_interface);
    if (described == interfaces.end()) {
        return std::nullopt;
    }
    const std::map<std::string, sdbus::Variant>& from = described->second;
    bridge_identity bridge;
    bridge.handle = property<std::uint32_t>(from, "Handle");
    const auto bus = property<std::string>(from, "Bus");
    if (bridge.handle == 0 || path != bridge_folder + std::to_string(bridge.handle) ||
        (bus != "USB" && bus != "FireWire")) {
        return std::nullopt;
    }
    bridge.firewire = bus == "FireWire";
    bridge.vendor_id = property<std::uint32_t>(from, "VendorId");
    bridge.product_id = property<std::uint32_t>(from, "ProductId");
    bridge.location_id = property<std::int32_t>(from, "LocationId");
    bridge.serial = bounded(property<std::string>(from, "Serial"), longest_serial);
    bridge.guid = property<std::uint64_t>(from, "Guid");
    bridge.name = bounded(property<std::string>(from, "Name"), longest_name);
    return bridge;
}

} // namespace

bool emulated_bus::listen(listener told) {
    told_ = std::move(told);
    try {
        join();
        return true;
    } catch (const sdbus::Error& error) {
        print_err("no session bus: " + error.getMessage() +
                  "; start the program from a desktop session or under dbus-run-session\n");
        return false;
    }
}

void emulated_bus::join() {
    connection_ = sdbus::createSessionBusConnection();
    connection_->setMethodCallTimeout(answer_limit);
    add_matches();
    owner_changed(ask_owner());
}

void emulated_bus::add_matches() {
    const auto add = [this](const std::string& rule, void (emulated_bus::*take)(sdbus::Message&)) {
        matches_.push_back(connection_->addMatch(rule, [this, take](sdbus::Message& message) {
            take_signal([&] { (this->*take)(message); });
        }));
    };
    add("type='signal',sender='" + bus_name + "',path='" + bus_path + "',interface='" + bus_name +
            "',member='NameOwnerChanged',arg0='" + service + "'",
        &emulated_bus::name_owner_changed);
    const std::string from_service =
        "type='signal',path='" + service_root + "',interface='" + manager_interface + "',member='";
    add(from_service + "InterfacesAdded'", &emulated_bus::object_added);
    add(from_service + "InterfacesRemoved'", &emulated_bus::object_removed);
}

std::string emulated_bus::ask_owner() {
    try {
        std::string owner;
        sdbus::createProxy(*connection_, bus_name, bus_path)
            ->callMethod("GetNameOwner")
            .onInterface(bus_name)
            .withArguments(service)
            .storeResultsTo(owner);
        return owner;
    } catch (const sdbus::Error& error) {
        if (error.getName() == "org.freedesktop.DBus.Error.NameHasNoOwner") {
            return {};
        }
        throw;
    }
}

void emulated_bus::owner_changed(const std::string& owner) {
    if (owner == owner_) {
        return;
    }
    all_departed();
    owner_ = owner;
    asked_in_vain_ = !owner_.empty() && !enumerate();
    if (asked_in_vain_) {
        print_err("enclosure service does not list its bridges and is asked again; restart it if "
                  "they stay away\n");
    }
}

void emulated_bus::ask_again() {
    if (asked_in_vain_) {
        asked_in_vain_ = !enumerate();
    }
}

// False: the service did not answer.
bool emulated_bus::enumerate() {
    std::map<sdbus::ObjectPath, interfaces> objects;
    try {
        sdbus::createProxy(*connection_, owner_, service_root)
            ->callMethod("GetManagedObjects")
            .onInterface(manager_interface)
            .storeResultsTo(objects);
    } catch (const sdbus::Error&) {
        return false;
    }
    std::vector<bridge_identity> found;
    for (const auto& [path, held] : objects) {
        if (const std::optional<bridge_identity> bridge = bridge_in(path, held)) {
            found.push_back(*bridge);
        }
    }
    // Handles are given in the order of arrival; paths sort as text.
    std::sort(found.begin(), found.end(), [](const bridge_identity& a, const bridge_identity& b) {
        return a.handle < b.handle;
    });
    for (const bridge_identity& bridge : found) {
        take_in(bridge);
    }
    return true;
}

void emulated_bus::take_in(const bridge_identity& bridge) {
    if (present_.size() < most_bridges &&
        std::find(present_.begin(), present_.end(), bridge.handle) == present_.end()) {
        present_.push_back(bridge.handle);
        told_.arrived(bridge);
    }
}

void emulated_bus::name_owner_changed(sdbus::Message& message) {
    std::string name;
    std::string before;
    std::string after;
    message >> name >> before >> after;
    owner_changed(after);
}

// Anybody on the bus can send such a signal, hence the look at the sender.
void emulated_bus::object_added(sdbus::Message& message) {
    if (message.getSender() != owner_) {
        return;
    }
    sdbus::ObjectPath path;
    interfaces added;
    message >> path >> added;
    if (const std::optional<bridge_identity> bridge = bridge_in(path, added)) {
        take_in(*bridge);
    }
}

void emulated_bus::object_removed(sdbus::Message& message) {
    if (message.getSender() != owner_) {
        return;
    }
    sdbus::ObjectPath path;
    std::vector<std::string> removed;
    message >> path >> removed;
    if (std::find(removed.begin(), removed.end(), bridge_interface) == removed.end()) {
        return;
    }
    const auto gone = std::find_if(present_.begin(), present_.end(), [&](std::uint32_t handle) {
        return path == bridge_folder + std::to_string(handle);
    });
    if (gone != present_.end()) {
        const std::uint32_t handle = *gone;
        present_.erase(gone);
        told_.departed(handle);
    }
}

void emulated_bus::all_departed() {
    const std::vector<std::uint32_t> gone = std::exchange(present_, {});
    for (const std::uint32_t handle : gone) {
        told_.departed(handle);
    }
}

void emulated_bus::bus_has_gone() {
    all_departed();
    if (!std::exchange(gone_, true)) {
        print_err("the session bus has gone; start the program again for its enclosures\n");
    }
}

pollfd emulated_bus::watched() const {
    const sdbus::IConnection::PollData data = connection_->getEventLoopPollData();
    return {data.fd, data.events, 0};
}

int emulated_bus::poll_timeout() const {
    const int of_bus = connection_->getEventLoopPollData().getPollTimeout();
    const auto pause = static_cast<int>(std::chrono::milliseconds(ask_again_pause).count());
    return asked_in_vain_ && (of_bus < 0 || of_bus > pause) ? pause : of_bus;
}

bool emulated_bus::process() {
    try {
        while (connection_->processPendingRequest()) {
        }
        ask_again();
        return true;
    } catch (const sdbus::Error&) {
        bus_has_gone();
        return false;
    }
}

bool emulated_bus::catch_up() {
    try {
        ask_owner();
    } catch (const sdbus::Error&) {
        // A bus that has gone shows below.
    }
    return process();
}
