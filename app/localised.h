// The program's texts for widgets.
#pragma once

#include <QString>

// The text of that key in the user's language, as one line. Interface thread.
QString localised(const char* key);
