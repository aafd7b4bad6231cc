#include "app/scroll_look.h"

#include <QPainter>
#include <QStyleOptionSlider>
#include <algorithm>
#include <cstdint>

#include "app/colours.h"
#include "app/surfaces.h"

namespace {

constexpr int room = 2;
constexpr int shortest_handle = 32;

bool upright(const QStyleOptionSlider& option) {
    return option.orientation == Qt::Vertical;
}

// Along the way of the handle, from where the bar begins.
struct stretch {
    int begin;
    int length;
};

stretch handle_of(const QStyleOptionSlider& option, int way) {
    const std::int64_t range = std::int64_t{option.maximum} - option.minimum;
    if (range <= 0) {
        return {0, way};
    }
    const std::int64_t share = std::int64_t{option.pageStep} * way / (range + option.pageStep);
    const int length = std::min(std::max(static_cast<int>(share), shortest_handle), way);
    return {QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                            way - length, option.upsideDown),
            length};
}

QRect along(const QStyleOptionSlider& option, const stretch& part) {
    const QRect track = option.rect.adjusted(room, room, -room, -room);
    if (upright(option)) {
        return {track.left(), track.top() + part.begin, track.width(), part.length};
    }
    return QStyle::visualRect(
        option.direction, option.rect,
        QRect(track.left() + part.begin, track.top(), part.length, track.height()));
}

} // namespace

void paint_scroll_bar(QPainter& painter, const QStyleOptionSlider& option) {
    constexpr int radius = 3;
    const bool hovered = option.state.testFlag(QStyle::State_MouseOver) &&
                         option.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider);
    paint_surface(painter, part_of_scroll_bar(option, QStyle::SC_ScrollBarSlider),
                  {qRgba(255, 255, 255, hovered ? 97 : 56), colours::nothing, radius, false});
}

QRect part_of_scroll_bar(const QStyleOptionSlider& option, QStyle::SubControl part) {
    const int way = (upright(option) ? option.rect.height() : option.rect.width()) - 2 * room;
    const stretch handle = handle_of(option, way);
    const int end = handle.begin + handle.length;
    switch (part) {
    case QStyle::SC_ScrollBarSlider:
        return along(option, handle);
    case QStyle::SC_ScrollBarGroove:
        return along(option, {0, way});
    case QStyle::SC_ScrollBarSubPage:
        return along(option, {0, handle.begin});
    case QStyle::SC_ScrollBarAddPage:
        return along(option, {end, way - end});
    default:
        return {};
    }
}
