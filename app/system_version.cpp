#include "app/system_version.h"

std::int32_t desktop_version::number(version_part part) {
    switch (part) {
    case version_part::major:
        return 10;
    case version_part::minor:
        return 6;
    case version_part::bug_fix:
        break;
    }
    return 0;
}

bool is_10_6_or_later(version_query& query) {
    const std::int32_t major = query.number(version_part::major);
    const std::int32_t minor = query.number(version_part::minor);
    const std::int32_t bug_fix = query.number(version_part::bug_fix);
    return major >= 10 && minor >= 6 && bug_fix >= 0;
}
