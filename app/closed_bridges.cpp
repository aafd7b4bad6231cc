#include "app/closed_bridges.h"

#include <algorithm>
#include <iterator>

#include "app/display_text.h"

namespace {

constexpr std::size_t most_named = 2;

std::string name_of(const reached_bridge& bridge) {
    return bridge.name.empty() ? bridge.node : bridge.name + " (" + bridge.node + ")";
}

std::string names_of(const std::vector<reached_bridge>& bridges) {
    std::string names;
    for (std::size_t i = 0; i < std::min(bridges.size(), most_named); ++i) {
        names += (i == 0 ? "" : ", ") + name_of(bridges[i]);
    }
    return bridges.size() > most_named ? names + ", …" : names;
}

std::vector<reached_bridge> those(const std::vector<reached_bridge>& all, bool permitted) {
    std::vector<reached_bridge> some;
    std::copy_if(all.begin(), all.end(), std::back_inserter(some),
                 [permitted](const reached_bridge& one) { return one.permitted == permitted; });
    return some;
}

} // namespace

std::optional<closed_note> note_on(const std::vector<reached_bridge>& connected,
                                   const text_lookup& texts) {
    const std::string refresh = texts.text("refresh_button");
    if (const auto closed = those(connected, false); !closed.empty()) {
        return closed_note{"ui_closed_heading",
                           filled(texts.text("ui_closed_text"), {names_of(closed), refresh})};
    }
    if (!connected.empty()) {
        return closed_note{"ui_silent_heading",
                           filled(texts.text("ui_silent_text"), {names_of(connected), refresh})};
    }
    return std::nullopt;
}
