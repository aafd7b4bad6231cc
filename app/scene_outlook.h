// Shows how the array stands. Interface thread.
#pragma once

struct button_reasons;
struct outlook;
class controller;

// The verdict and the advice, the reasons of buttons that are off, and what each disk is in a
// rebuild.
void show_outlook(controller& window, const outlook& now);
// Why the buttons are off, alone.
void show_reasons(controller& window, const button_reasons& reasons);
// None of it.
void clear_outlook(controller& window);
