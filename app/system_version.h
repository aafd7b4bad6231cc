// The version of the operating system, as far as the window asks for it.
#pragma once

#include <cstdint>

enum class version_part { major, minor, bug_fix };

class version_query {
public:
    virtual ~version_query() = default;
    virtual std::int32_t number(version_part part) = 0;
};

// Linux desktops show disk sizes in decimal units, which is what 10.6.0 stands for.
class desktop_version final : public version_query {
public:
    std::int32_t number(version_part part) override;
};

// Asks for major, minor and bug fix in this order. The minor number is judged by itself, so 11.0
// is not enough.
bool is_10_6_or_later(version_query& query);
