// The program without its window: the model on the machine's own bridges.
#pragma once

#include "model/krchip.h"

#include "tests/vm/desk_window.h"

#include <functional>
#include <optional>
#include <string>

// The window that `ctrller` is.
desk_window& the_window();

// Starts the notification thread; once.
void start_program();

// The enclosure with that USB serial number, copied; nothing while it is not there.
std::optional<krchip> chip_with(const std::string& serial);

// Waits until the enclosure is there and `is_so` of it.
krchip await_chip(const std::string& what, const std::string& serial,
                  const std::function<bool(const krchip& chip)>& is_so);

// As the user does: selects the enclosure, and changes its array.
void select(const std::string& serial);
bool change(const std::string& serial, const std::function<bool(krchip& chip)>& operation);
