// Numbers as the kernel writes them for the devices of a bus. Any thread.
#pragma once

#include <cstdint>
#include <string_view>

// A hexadecimal number of at most `most`, with or without "0x" in front; 0 when the text is
// anything else.
std::uint64_t hex_number(std::string_view text, std::uint64_t most);

// The location number of a USB socket (docs/formats.md) from the bus's number in decimal and the
// ports on the way, as "1.4.2"; 0 when either is anything else.
std::int32_t location_number(std::string_view bus, std::string_view ports);
