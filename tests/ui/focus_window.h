// The window as somebody sees it who has no mouse.
#pragma once

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>
#include <string>

#include "app/krview.h"
#include "app/main_window.h"
#include "app/window_extras.h"
#include "tests/ui/window_test.h"

// The control that has the focus.
inline std::string focus() {
    const QWidget* focused = QApplication::focusWidget();
    return focused == nullptr ? "nowhere" : focused->objectName().toStdString();
}

inline void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

// A window that has the keyboard; the focus is on its background.
class focus_window : public window_test {
protected:
    void SetUp() override {
        window_test::SetUp();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window->mainwindow));
    }

    // Every control that the configuration tab can have, at once.
    void enable_everything() {
        show_chip([](krchip& chip) {
            put_disk(chip.disks[0], 2'000'000, mode_raid1, 1'000'000);
            put_disk(chip.disks[1], 2'000'000);
            chip.rebuild_possible = 1;
        });
        window->update_raid_information();
        enable_controls();
    }
    void enable_controls() {
        window->outlets.select(window->tabview, 0);
        window->enablegui(false);
        window->outlets.set_hidden(window->cleardisk0button, false);
        window->outlets.set_hidden(window->cleardisk1button, false);
        window->extras->warmbootbutton->setEnabled(true);
    }
};
