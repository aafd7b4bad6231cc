#include "app/pace_text.h"

#include "app/display_text.h"
#include "util/functions.h"

namespace {

std::string number(std::chrono::seconds::rep value) {
    return inttostring(static_cast<std::uint64_t>(value));
}

} // namespace

std::string speed_text(const pace_view& pace, const text_lookup& texts) {
    constexpr std::uint64_t megabyte = 1'000'000;
    constexpr std::uint64_t ten = 10;
    if (pace.stalled) {
        return texts.text("ui_stalled");
    }
    if (!pace.bytes_per_second) {
        return {};
    }
    const std::uint64_t whole = *pace.bytes_per_second / megabyte;
    if (whole >= ten) {
        return inttostring(whole) + " MB/s";
    }
    const std::uint64_t tenths = *pace.bytes_per_second % megabyte / (megabyte / ten);
    return inttostring(whole) + "." + inttostring(tenths) + " MB/s";
}

std::string time_left_text(const pace_view& pace, const text_lookup& texts) {
    if (!pace.left) {
        return {};
    }
    const auto hours = std::chrono::duration_cast<std::chrono::hours>(*pace.left);
    const auto minutes = std::chrono::duration_cast<std::chrono::minutes>(*pace.left - hours);
    if (hours.count() > 0) {
        return filled(texts.text("ui_left_hours"),
                      {number(hours.count()), number(minutes.count())});
    }
    if (minutes.count() > 0) {
        return filled(texts.text("ui_left_minutes"), {number(minutes.count())});
    }
    return texts.text("ui_left_soon");
}
