// The window in a language of ours and in any of its states.
#pragma once

#include <QTranslator>
#include <string>
#include <vector>

#include "tests/ui/window_test.h"

class spoken_window : public window_test {
protected:
    void SetUp() override;
    void TearDown() override;

    // The window is made anew, with the texts of that language. Before anything is shown.
    void open_in(const QString& language);

    // The window goes, and its language with it.
    void close();

    // All states that the window itself has, by name.
    static std::vector<std::string> state_names();
    // Shows one of them. A state follows another as well as the empty window.
    void show_state(const std::string& name);

    // Serves the window until nothing moves in it.
    void settle();

    // Opens a dialog over the window, looks at it and dismisses it.
    void visit_dialog(const std::function<void(input_guard& guard)>& open,
                      const std::function<void(const QWidget& dialog)>& look);

    // Two disks with these modes; the array's size and kind are those of the first.
    void prepare_disks(krchip& chip, int mode0, int mode1);

private:
    void show_chip_state(const std::function<void(krchip&)>& prepare);
    void show_rebuild(std::uint64_t moved);
    void show_information();
    void show_without_chips();

    QTranslator translator_;
    bool open_ = false;
};
