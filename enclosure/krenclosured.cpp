// krenclosured: the host service of the emulated enclosures.
#include "enclosure/host_service.h"
#include "enclosure/problem.h"
#include "enclosure/version.h"

#include <CLI/CLI.hpp>

#include <sys/signalfd.h>

#include <csignal>
#include <iostream>

namespace {

using namespace enclosure;

void complain(const std::string& line) {
    std::cerr << "krenclosured: " + line + "\n" << std::flush;
}

// SIGTERM and its like as a readable descriptor.
file_handle stop_signals() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        sigaddset(&signals, signal);
    }
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return file_handle(::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK));
}

std::unique_ptr<sdbus::IConnection> join_bus() {
    try {
        return sdbus::createSessionBusConnection();
    } catch (const sdbus::Error& error) {
        throw problem("no session bus: " + error.getMessage() +
                      "; start the service from a desktop session or under dbus-run-session");
    }
}

void take_name(sdbus::IConnection& connection) {
    try {
        connection.requestName(bus::service);
    } catch (const sdbus::Error&) {
        throw problem("the name " + bus::service +
                      " is taken on this session bus; another krenclosured runs already");
    }
}

void serve(const file_handle& stop) {
    const std::unique_ptr<sdbus::IConnection> connection = join_bus();
    take_name(*connection);
    state_store store(usual_state_folder(), complain);
    host_service service(*connection, store, complain);
    try {
        service.run(stop.get());
    } catch (const sdbus::Error&) {
        complain("the session bus has gone, and the enclosures with it");
    }
}

int run(int argc, char** argv) {
    CLI::App app("Keeps the emulated enclosures of this session; krenclosure controls them.");
    app.set_version_flag("--version", "krenclosured " KESTREL_VERSION);
    CLI11_PARSE(app, argc, argv);
    const file_handle stop = stop_signals();
    std::signal(SIGPIPE, SIG_IGN); // nobody may be reading the complaints
    try {
        serve(stop);
        return 0;
    } catch (const problem& trouble) {
        complain(trouble.what());
    } catch (const std::exception& error) {
        complain(std::string("cannot go on: ") + error.what());
    }
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(argc, argv);
    } catch (const std::exception&) {
        return 1; // not even the words are to be had
    }
}
