#include "app/controller_entry.h"

#include "app/display_text.h"
#include "util/functions.h"
#include "util/library.h"

std::string controller_entry_text(const controller_t& identity, const std::string& name) {
    const std::string what =
        identity.firewire
            ? " (GUID: " + inttohexstring(static_cast<std::int64_t>(identity.guid), 0) + ")"
            : " (S/N: " + identity.serial + ")";
    return device_text(name + " " + what);
}
