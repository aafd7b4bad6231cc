#include "enclosure/joined_transport.h"

#include "enclosure/sg_handle.h"

namespace enclosure {

transport& joined_transport::way_to(std::uint32_t handle) {
    return is_sg_handle(handle) ? real_ : emulated_;
}

bridge_listing joined_transport::bridges() {
    bridge_listing all = emulated_.bridges();
    const bridge_listing others = real_.bridges();
    all.handles.insert(all.handles.end(), others.handles.begin(), others.handles.end());
    all.complete = all.complete && others.complete;
    return all;
}

} // namespace enclosure
