// Commands of the machine.
#pragma once

#include <string>

// Runs a command line, shows it with what it printed, and gives what it printed; a failing one
// throws std::runtime_error with it. Any thread.
std::string run(const std::string& line);

// The same; false when it failed.
bool try_run(const std::string& line);
