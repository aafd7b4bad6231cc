// What the chip says of itself in mode pages.
#pragma once

#include "enclosure/scsi.h"

namespace enclosure {

// The answer to MODE SENSE (6) or (10): not write-protected, the write cache in use, no block
// descriptors. Pages 0x08 and 0x3F (all there are); others are refused, saved values too. `cdb` has
// the length of its group. Any thread.
scsi_reply mode_sense(byte_view cdb);

} // namespace enclosure
