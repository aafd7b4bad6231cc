// The disks of a plan, one card each.
#pragma once

class QWidget;
struct plan_view;

// Both cards with the arrow between them, bay 1 on the left. The caller owns it until it is put
// into a layout. Interface thread.
QWidget* make_plan_cards(const plan_view& plan);
