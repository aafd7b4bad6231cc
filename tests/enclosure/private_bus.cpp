#include "tests/enclosure/private_bus.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <stdexcept>

namespace {

constexpr const char* variable = "DBUS_SESSION_BUS_ADDRESS";

std::string read_line(int fd) {
    std::string line;
    char c = 0;
    while (::read(fd, &c, 1) == 1 && c != '\n') {
        line += c;
    }
    return line;
}

} // namespace

// No other thread of a test looks at the environment meanwhile.
bus_address::bus_address(const std::string& address) {
    if (const char* const was = std::getenv(variable)) { // NOLINT(concurrency-mt-unsafe)
        former_ = was;
    }
    ::setenv(variable, address.c_str(), 1); // NOLINT(concurrency-mt-unsafe)
}

bus_address::~bus_address() {
    if (former_) {
        ::setenv(variable, former_->c_str(), 1); // NOLINT(concurrency-mt-unsafe)
    } else {
        ::unsetenv(variable); // NOLINT(concurrency-mt-unsafe)
    }
}

private_bus::private_bus() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error("cannot make a pipe");
    }
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    std::string program = DBUS_DAEMON;
    std::string session = "--session";
    std::string print = "--print-address";
    std::string stay = "--nofork";
    char* arguments[] = {program.data(), session.data(), print.data(), stay.data(), nullptr};
    const int failed = ::posix_spawn(&pid_, program.c_str(), &actions, nullptr, arguments, environ);
    ::posix_spawn_file_actions_destroy(&actions);
    ::close(ends[1]);
    address_ = failed == 0 ? read_line(ends[0]) : "";
    ::close(ends[0]);
    if (address_.empty()) {
        throw std::runtime_error("cannot start a session bus");
    }
}

private_bus::~private_bus() {
    end();
}

void private_bus::end() {
    if (pid_ > 0) {
        ::kill(pid_, SIGKILL);
        ::waitpid(pid_, nullptr, 0);
        pid_ = 0;
    }
}
