// Named values of a bus request, each read once.
#pragma once

#include "enclosure/dbus_names.h"
#include "enclosure/problem.h"

#include <optional>
#include <string>

namespace enclosure {

class option_reader {
public:
    explicit option_reader(bus::options values) : values_(std::move(values)) {}

    // Nothing when there is no such value; throws problem when it has another type.
    template<class Value> std::optional<Value> take(const std::string& name) {
        const auto found = values_.find(name);
        if (found == values_.end()) {
            return std::nullopt;
        }
        if (!found->second.containsValueOfType<Value>()) {
            throw problem("option '" + name + "' has another type than expected");
        }
        const Value value = found->second.get<Value>();
        values_.erase(found);
        return value;
    }

    // Throws problem when a value was not taken.
    void finish() const {
        if (!values_.empty()) {
            throw problem("there is no option '" + printable(values_.begin()->first) + "'");
        }
    }

private:
    bus::options values_;
};

} // namespace enclosure
