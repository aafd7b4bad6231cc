// One command through a SCSI generic node, and what its outcome means.
#pragma once

#include "enclosure/sg_nodes.h"
#include "enclosure/transport.h"

#include <chrono>

namespace enclosure {

// A disk that has to spin up first answers within that time.
inline constexpr std::chrono::seconds sg_answer_limit{30};
// A device that was silent last time is not waited for as long.
inline constexpr std::chrono::seconds sg_short_limit{3};

// Makes the command and waits for its outcome. At most `allocation` bytes come back; data goes
// out or comes in, never both. A command that was not carried out, since the device had something
// to tell first or is just becoming ready, is made again, with the full limit, as the device has
// answered; the kernel does not do that here. One that the bus lost is made once more if it only
// fetches data, and never otherwise: it may have been carried out. Blocks for the limit at least
// if the device is silent. One thread at a time for a node; throws nothing but bad_alloc.
exchange sg_exchange(sg_nodes& nodes, const file_handle& node, byte_view cdb, byte_view data_out,
                     std::uint32_t allocation, std::chrono::seconds limit = sg_answer_limit);

} // namespace enclosure
