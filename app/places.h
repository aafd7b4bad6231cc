// Places of the window's plan that more than one file knows of, in its pixels.
#pragma once

#include <QRect>

namespace places {

// The first bay; the second lies bay_distance to the right.
inline constexpr int bay_distance = 320;
inline constexpr QRect disk_picture(140, 120, 104, 120);
inline constexpr QRect disk_capacity(260, 204, 176, 32);
// An array that is drawn as one volume.
inline constexpr QRect volume_state(388, 158, 368, 36);
// The modes on the configuration tab; the second disk's lies configured_distance below.
inline constexpr int configured_distance = 60;
inline constexpr QRect configured_mode(548, 403, 208, 18);

} // namespace places
