// krenclosure as people type it.
#pragma once

#include <nlohmann/json.hpp>

#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>

struct outcome {
    int status;
    std::string output; // of both streams

    long lines() const { return std::count(output.begin(), output.end(), '\n'); }
};

inline outcome run(const std::string& command_line) {
    FILE* const pipe = ::popen((command_line + " 2>&1").c_str(), "r");
    outcome made{-1, ""};
    std::array<char, 4096> buffer{};
    while (const std::size_t got = std::fread(buffer.data(), 1, buffer.size(), pipe)) {
        made.output.append(buffer.data(), got);
    }
    const int status = ::pclose(pipe);
    made.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return made;
}

inline outcome command(const std::string& arguments) {
    return run(KRENCLOSURE " " + arguments);
}

inline nlohmann::json listed() {
    return nlohmann::json::parse(command("list --json").output);
}
