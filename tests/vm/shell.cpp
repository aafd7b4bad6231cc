#include "tests/vm/shell.h"

#include <array>
#include <cstdio>
#include <stdexcept>

namespace {

struct ended {
    int status;
    std::string printed;
};

ended carry_out(const std::string& line) {
    std::FILE* const pipe = ::popen(("exec 2>&1; " + line).c_str(), "re");
    if (pipe == nullptr) {
        return {-1, "cannot be started"};
    }
    std::string printed;
    std::array<char, 4096> piece{};
    while (const std::size_t count = std::fread(piece.data(), 1, piece.size(), pipe)) {
        printed.append(piece.data(), count);
    }
    const int status = ::pclose(pipe);
    std::printf("$ %s\n%s", line.c_str(), printed.c_str());
    std::fflush(stdout);
    return {status, printed};
}

} // namespace

std::string run(const std::string& line) {
    const ended end = carry_out(line);
    if (end.status != 0) {
        throw std::runtime_error(line + ": " + end.printed);
    }
    return end.printed;
}

bool try_run(const std::string& line) {
    return carry_out(line).status == 0;
}
