// Lines that the tests of array changes expect in the log, in pieces.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "tests/support/fixture.h"

// How a bridge is asked for a sector: the plain form with its 48-bit flag set or clear, or the
// FireWire form, which has none.
enum class sector_form { lba48, plain, firewire };

// All pieces, one after the other.
lines joined(std::initializer_list<lines> pieces);

// A sector of the usual chip is written, and read back. `contents` as sketch() shows it.
lines verified_write(const std::string& contents, std::uint64_t lba, int port,
                     sector_form form = sector_form::lba48);

// LBAs 0 to 63 are zeroed; at each of them the disks on `ports`, in this order.
lines wiped_start(const std::vector<int>& ports, sector_form form = sector_form::lba48);

// The caches of `ports` are flushed and the chip is restarted.
lines restart(const std::vector<int>& ports);
