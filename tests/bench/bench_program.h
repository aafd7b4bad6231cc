// The program that is measured: the model on emulated enclosures, with its pauses counted.
#pragma once

#include "model/krtool.h"
#include "tests/bench/bench_desk.h"
#include "tests/bench/bench_surroundings.h"

bench_desk& the_desk();
counted_pauses& the_pauses();
