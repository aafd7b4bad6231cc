// The window with the user's buttons, and what is seen of a change that they ask for.
#pragma once

#include <QPushButton>
#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "tests/ui/window_test.h"

class change_window : public window_test {
protected:
    void SetUp() override {
        window_test::SetUp();
        take_chip(memory_disk(disk_a()), memory_disk(disk_b()));
    }

    void take_mirror() {
        forget_all();
        take_chip(member_a(mode_raid1), member_b(mode_raid1));
    }

    // One bridge with a serial number, read by the window.
    void read_named_bridge() {
        forget_all();
        attach(device, usb_bridge(1, 2, 0x100, u"ABC"), memory_disk(disk_a()),
               memory_disk(disk_b()));
        window->refresh();
    }

    // Presses a button as far as it can be pressed now.
    void press(QPushButton* button) {
        button->setEnabled(true);
        take_outlets();
        log.clear();
        button->click();
    }

    // Everything that can be asked for with a panel.
    std::vector<QPushButton*> all_buttons() const {
        return {window->confirmbutton,     window->clearconfigbutton, window->rebuild0to1button,
                window->rebuild1to0button, window->cleardisk0button,  window->cleardisk1button};
    }

    std::size_t writes() const { return log.count("krSetRaidInfo"); }
    std::size_t restarts() const { return log.count("krWarmBoot"); }

    // Panels and safety copies, in their order.
    lines talk() const {
        lines said;
        for (const std::string& line : log.lines(from_window)) {
            if (line.rfind("panel ", 0) == 0 || line.rfind("copy ", 0) == 0) {
                said.push_back(line);
            }
        }
        return said;
    }

    // The library calls before the first of that name.
    lines until(const std::string& name) const {
        lines calls = log.lines(from_library);
        const auto end = std::find_if(calls.begin(), calls.end(), [&](const std::string& line) {
            return line.rfind(name, 0) == 0;
        });
        calls.erase(end, calls.end());
        return calls;
    }

    // Notes what was written to the outlets before the first sector is written.
    void watch_first_write() {
        library.on_nth("krSetRaidInfo", 1, [this] { before_first_write = outlet_log; });
    }

    void change_disk(int port, const std::function<void(krdisk&)>& how) {
        const lock_scope lock(j.records);
        how(j.chips[0].disks[static_cast<std::size_t>(port)]);
    }

    const std::string asked = "panel warning [warning] all_data_lost (ok) (cancel)";
    const lines all_disabled = {"rebuild0to1button: disabled", "rebuild1to0button: disabled",
                                "confirmbutton: disabled",     "cleardisk0button: disabled",
                                "cleardisk1button: disabled",  "clearconfigbutton: disabled"};
    lines before_first_write;
};
