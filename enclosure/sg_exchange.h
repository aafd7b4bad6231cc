// One command through a SCSI generic node, and what its outcome means.
#pragma once

#include "enclosure/sg_nodes.h"
#include "enclosure/transport.h"

#include <chrono>

namespace enclosure {

// A disk that has to spin up first answers within that time.
inline constexpr std::chrono::seconds sg_answer_limit{30};

// Makes the command and waits for its outcome. At most `allocation` bytes come back; data goes
// out or comes in, never both. Never throws anything of its own.
exchange sg_exchange(sg_nodes& nodes, const file_handle& node, byte_view cdb, byte_view data_out,
                     std::uint32_t allocation);

} // namespace enclosure
