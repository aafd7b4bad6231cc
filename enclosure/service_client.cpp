#include "enclosure/service_client.h"

#include "enclosure/problem.h"

#include <vector>

namespace enclosure {

namespace {

// What the bus said about a request on `what`, as a line for a person.
problem explained(const sdbus::Error& error, const std::string& what) {
    const std::string& name = error.getName();
    if (name == bus::error_name) {
        return problem(error.getMessage());
    }
    if (name == "org.freedesktop.DBus.Error.ServiceUnknown" ||
        name.starts_with("org.freedesktop.DBus.Error.Spawn")) {
        return problem("the enclosure service cannot be started: " + error.getMessage() +
                       "; start 'krenclosured' by hand");
    }
    if (name == "org.freedesktop.DBus.Error.UnknownObject") {
        return problem("there is no enclosure '" + what +
                       "'; 'krenclosure list' shows those there are");
    }
    return problem("the enclosure service does not answer: " + error.getMessage() +
                   "; look at its output and start it again");
}

std::unique_ptr<sdbus::IConnection> join_bus() {
    try {
        return sdbus::createSessionBusConnection();
    } catch (const sdbus::Error& error) {
        throw problem("no session bus: " + error.getMessage() +
                      "; run this from a desktop session or under dbus-run-session");
    }
}

} // namespace

service_client::service_client() : connection_(join_bus()) {}

std::unique_ptr<sdbus::IProxy> service_client::object(const std::string& path) {
    return sdbus::createProxy(*connection_, bus::service, path);
}

template<class Call> auto service_client::made(const std::string& what, Call call) {
    try {
        return call();
    } catch (const sdbus::Error& error) {
        throw explained(error, what);
    }
}

template<class... Arguments>
void service_client::manage(const std::string& method, const Arguments&... arguments) {
    made(bus::service, [&] {
        object(bus::root)
            ->callMethod(method)
            .onInterface(bus::manager_interface)
            .withArguments(arguments...);
    });
}

template<class... Arguments>
void service_client::control(const std::string& enclosure, const std::string& method,
                             const Arguments&... arguments) {
    check_name("enclosure", enclosure);
    made(enclosure, [&] {
        object(bus::enclosure_path(enclosure))
            ->callMethod(method)
            .onInterface(bus::enclosure_interface)
            .withArguments(arguments...);
    });
}

template<class Result, class... Arguments>
Result service_client::ask(const std::string& enclosure, const std::string& method,
                           const Arguments&... arguments) {
    check_name("enclosure", enclosure);
    return made(enclosure, [&] {
        Result result{};
        object(bus::enclosure_path(enclosure))
            ->callMethod(method)
            .onInterface(bus::enclosure_interface)
            .withArguments(arguments...)
            .storeResultsTo(result);
        return result;
    });
}

void service_client::add_enclosure(const bus::options& settings) {
    manage("AddEnclosure", settings);
}

void service_client::remove_enclosure(const std::string& name) {
    manage("RemoveEnclosure", name);
}

void service_client::add_disk(const std::string& name, const identify_block& identity) {
    manage("AddDisk", name, std::vector<std::uint8_t>(identity.begin(), identity.end()));
}

void service_client::remove_disk(const std::string& name) {
    manage("RemoveDisk", name);
}

std::string service_client::describe() {
    return made(bus::service, [&] {
        std::string json;
        object(bus::root)
            ->callMethod("Describe")
            .onInterface(bus::manager_interface)
            .storeResultsTo(json);
        return json;
    });
}

void service_client::insert(const std::string& enclosure, std::uint8_t bay,
                            const std::string& disk) {
    control(enclosure, "Insert", bay, disk);
}

std::string service_client::pull(const std::string& enclosure, std::uint8_t bay) {
    return ask<std::string>(enclosure, "Pull", bay);
}

std::uint32_t service_client::plug(const std::string& enclosure) {
    return ask<std::uint32_t>(enclosure, "Plug");
}

void service_client::unplug(const std::string& enclosure) {
    control(enclosure, "Unplug");
}

export_place service_client::begin_export(const std::string& enclosure, std::uint16_t port) {
    check_name("enclosure", enclosure);
    return made(enclosure, [&] {
        export_place place;
        object(bus::enclosure_path(enclosure))
            ->callMethod("Export")
            .onInterface(bus::enclosure_interface)
            .withArguments(port)
            .storeResultsTo(place.busid, place.port);
        return place;
    });
}

void service_client::end_export(const std::string& enclosure) {
    control(enclosure, "Unexport");
}

void service_client::warm_boot(const std::string& enclosure) {
    control(enclosure, "WarmBoot");
}

void service_client::power_cut(const std::string& enclosure) {
    control(enclosure, "PowerCut");
}

void service_client::set_rate(const std::string& enclosure, std::uint64_t bytes_per_second) {
    control(enclosure, "SetRate", bytes_per_second);
}

void service_client::add_fault(const std::string& enclosure, const bus::options& rule) {
    control(enclosure, "AddFault", rule);
}

std::uint32_t service_client::clear_faults(const std::string& enclosure) {
    return ask<std::uint32_t>(enclosure, "ClearFaults");
}

void service_client::arrange(const std::string& enclosure, const std::string& scenario) {
    control(enclosure, "Arrange", scenario);
}

} // namespace enclosure
