// The document that describes the desk, as the commands read it.
#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace enclosure {

// The enclosure of that name; null when the desk has none.
inline const nlohmann::json* enclosure_in(const nlohmann::json& desk, const std::string& name) {
    for (const nlohmann::json& one : desk.at("enclosures")) {
        if (one.at("name") == name) {
            return &one;
        }
    }
    return nullptr;
}

} // namespace enclosure
