// Whether there is a display to open the window on.
#pragma once

// Looks at the environment and at Qt's own -platform option only. At start, one thread.
bool display_at_hand(int argc, char** argv);
