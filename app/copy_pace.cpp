#include "app/copy_pace.h"

namespace {

using std::chrono::seconds;

constexpr std::uint64_t sector_bytes = 512;
constexpr seconds window_of_readings(60);
// A figure that jumps about says less than none.
constexpr seconds steady_after(12);

} // namespace

pace_view copy_pace::note(std::uint64_t end, std::uint64_t current, time_point now) {
    const bool goes_back = !readings_.empty() && current < readings_.back().current;
    if (end != end_ || goes_back) {
        readings_.clear();
        end_ = end;
    }
    readings_.push_back({current, now});
    drop_old(now);
    pace_view view;
    view.stalled = current < end && stands_still(now);
    const reading& first = readings_.front();
    const std::chrono::duration<double> span = now - first.when;
    if (view.stalled || span < steady_after || current == first.current || current >= end) {
        return view;
    }
    const double sectors_per_second = static_cast<double>(current - first.current) / span.count();
    view.bytes_per_second =
        static_cast<std::uint64_t>(sectors_per_second * static_cast<double>(sector_bytes));
    view.left =
        seconds(static_cast<std::int64_t>(static_cast<double>(end - current) / sectors_per_second));
    return view;
}

// The last reading from before the window stays, as its beginning.
void copy_pace::drop_old(time_point now) {
    while (readings_.size() > 2 && now - readings_[1].when >= window_of_readings) {
        readings_.pop_front();
    }
}

bool copy_pace::stands_still(time_point now) const {
    time_point moved = readings_.back().when;
    for (auto one = readings_.rbegin(); one != readings_.rend(); ++one) {
        if (one->current != readings_.back().current) {
            break;
        }
        moved = one->when;
    }
    return now - moved >= stalled_after;
}
