// What a person asked for cannot be done.
#pragma once

#include <stdexcept>

namespace enclosure {

// what() is one line that names the thing and the remedy; it is shown as it is.
class problem : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace enclosure
