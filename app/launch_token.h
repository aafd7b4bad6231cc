// The token with which a desktop lets a window come to the front.
#pragma once

#include <string>

// What the launcher of this program has left in the environment; empty without one. Before the
// application object is made, which takes it away. One thread.
std::string launch_token();

// Hands a token to the toolkit, for the next window that is activated; an empty one does nothing.
// Interface thread.
void use_launch_token(const std::string& token);
