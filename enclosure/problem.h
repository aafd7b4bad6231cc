// What a person asked for cannot be done.
#pragma once

#include <cerrno>
#include <stdexcept>
#include <string>
#include <system_error>

namespace enclosure {

// what() is one line that names the thing and the remedy; it is shown as it is.
class problem : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Why the latest call to the system failed, as errno has it.
inline std::string reason() {
    return std::generic_category().message(errno);
}

} // namespace enclosure
