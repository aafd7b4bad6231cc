#include "tests/enclosure/host_process.h"

#include <nlohmann/json.hpp>

#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <stdexcept>

namespace {

constexpr std::chrono::seconds patience{30};

const std::string bus_name = "org.freedesktop.DBus";

std::vector<std::string> environment_with(const std::string& data_home) {
    std::vector<std::string> variables;
    for (char** at = environ; *at != nullptr; ++at) {
        if (!std::string_view(*at).starts_with("XDG_DATA_HOME=")) {
            variables.emplace_back(*at);
        }
    }
    variables.push_back("XDG_DATA_HOME=" + data_home);
    return variables;
}

pid_t spawn(const std::string& program, const std::string& data_home) {
    std::vector<std::string> variables = environment_with(data_home);
    std::vector<char*> environment;
    environment.reserve(variables.size() + 1);
    for (std::string& variable : variables) {
        environment.push_back(variable.data());
    }
    environment.push_back(nullptr);
    std::string name = program;
    char* arguments[] = {name.data(), nullptr};
    pid_t pid = 0;
    if (::posix_spawn(&pid, program.c_str(), nullptr, nullptr, arguments, environment.data()) !=
        0) {
        throw std::runtime_error("cannot start " + program);
    }
    return pid;
}

} // namespace

bus_watch::bus_watch() : connection_(sdbus::createSessionBusConnection()) {
    const auto ignore = [](sdbus::Message&) {};
    matches_.push_back(connection_->addMatch(
        "type='signal',member='NameOwnerChanged',arg0='" + enclosure::bus::service + "'", ignore));
    matches_.push_back(
        connection_->addMatch("type='signal',path='" + enclosure::bus::root + "'", ignore));
}

bool bus_watch::until(const std::function<bool()>& reached) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!reached()) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0) {
            return false;
        }
        if (!connection_->processPendingRequest()) {
            pollfd bus{connection_->getEventLoopPollData().fd, POLLIN, 0};
            ::poll(&bus, 1, static_cast<int>(left.count()));
        }
    }
    return true;
}

bool bus_watch::service_runs() {
    bool runs = false;
    sdbus::createProxy(*connection_, bus_name, "/org/freedesktop/DBus")
        ->callMethod("NameHasOwner")
        .onInterface(bus_name)
        .withArguments(enclosure::bus::service)
        .storeResultsTo(runs);
    return runs;
}

host_process::host_process() {
    start();
}

host_process::~host_process() {
    try {
        if (runs()) {
            stop();
        }
    } catch (const std::exception& trouble) {
        std::fputs(trouble.what(), stderr);
    }
}

void host_process::start() {
    pid_ = spawn(KRENCLOSURED, folder_.path());
    if (!watch_.until([this] { return watch_.service_runs(); })) {
        throw std::runtime_error("the service does not come up");
    }
}

int host_process::collect() {
    int status = 0;
    ::waitpid(pid_, &status, 0);
    pid_ = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

int host_process::abandon() {
    return collect();
}

int host_process::wait_for_end() {
    const int status = collect();
    if (!watch_.until([this] { return !watch_.service_runs(); })) {
        throw std::runtime_error("the service's name does not go");
    }
    return status;
}

int host_process::stop() {
    ::kill(pid_, SIGTERM);
    return wait_for_end();
}

void host_process::kill() {
    ::kill(pid_, SIGKILL);
    wait_for_end();
}

std::uint32_t host_process::handle_of(const std::string& name) {
    const auto desk = nlohmann::json::parse(client_.describe());
    for (const auto& one : desk.at("enclosures")) {
        if (one.at("name") == name && !one.at("handle").is_null()) {
            return one.at("handle").get<std::uint32_t>();
        }
    }
    return 0;
}

std::uint32_t host_process::wait_for_new_handle(const std::string& name, std::uint32_t former) {
    std::uint32_t handle = 0;
    watch_.until([&] {
        handle = handle_of(name);
        return handle != 0 && handle != former;
    });
    return handle;
}
