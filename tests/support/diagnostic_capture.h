// Takes the model's diagnostic lines in place of the silent sink.
#pragma once

#include "tests/support/call_log.h"

// Writes them into `log` as "trace(...)" from now on; nullptr drops them again.
void capture_diagnostics(call_log* log);
