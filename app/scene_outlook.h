// Shows how the array stands. Interface thread.
#pragma once

struct outlook;
class controller;

// The verdict and the advice, the reasons of buttons that are off, and what each disk is in a
// rebuild.
void show_outlook(controller& window, const outlook& now);
// None of it.
void clear_outlook(controller& window);
