#include "tests/support/library_call.h"

#include <algorithm>
#include <array>
#include <cstdio>

bool library_call::per_device() const {
    return name != "getDeviceList" && name != "openConnection" && name != "closeConnection";
}

bool library_call::carries_bytes() const {
    return record.has_value() || name.starts_with("get") || name.starts_with("krGet");
}

std::string sketch(const sector_bytes& sector) {
    if (std::all_of(sector.begin(), sector.end(), [](unsigned char c) { return c == 0; })) {
        return "zeros";
    }
    if (sector[0] != 'K' || sector[1] != 'R') {
        return "other";
    }
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "KR %d %d %02x", sector[2], sector[3], sector[4]);
    return text.data();
}
