// A key for every action of the window. Interface thread.
#pragma once

class controller;

// Connects the keys of what is no button: both tabs and the list of enclosures. Once.
void connect_keys(controller& window);

// Gives the buttons their keys, and tips that name them; after their captions have been set.
void give_keys(controller& window);
