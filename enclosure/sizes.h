// Sizes and rates as people write them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace enclosure {

// A disk size in sectors: "2TB", "500 GB", "1.5TB", "700MB" in decimal units, or a plain number
// of sectors. Throws problem for anything else.
std::uint64_t sectors_of(std::string_view text);

// A rate in bytes per second from a number of MB/s, or 0 from "unlimited". Throws problem.
std::uint64_t rate_of(std::string_view text);

// "2.0 TB" and the like, in decimal units.
std::string size_text(std::uint64_t sectors);

} // namespace enclosure
