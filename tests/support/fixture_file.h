// The committed sectors of tests/fixtures.
#pragma once

#include <string>

#include "tests/support/sectors.h"

// The 512 bytes of tests/fixtures/NAME.hex. A file that is missing or malformed fails the test
// and yields zeros.
sector_bytes fixture_file(const std::string& name);
