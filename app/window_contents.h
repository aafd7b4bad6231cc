// The window's description: every widget, its name and its place. Interface thread.
#pragma once

class QWidget;
class controller;

// Makes the background view with all it holds, and connects the controller's outlets.
void build_window_contents(controller& window);

// Its parts.
void build_frame(controller& window);
void build_status_page(controller& window, QWidget* page);
void build_configuration_tab(controller& window, QWidget* page);
void build_rebuild_tab(controller& window, QWidget* page);
void build_information_page(controller& window, QWidget* page);
