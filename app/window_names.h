// Names for what is no text in the window. Interface thread.
#pragma once

class controller;

// Has the pictures told by the texts beside them; after the contents have been built.
void tell_pictures(controller& window);
