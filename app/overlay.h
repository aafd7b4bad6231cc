// Dialogs inside the window.
#pragma once

#include <QDialog>
#include <QList>
#include <functional>
#include <string>

class QPushButton;
class QVBoxLayout;
class input_guard;

// A framed dialog whose keys go round its own buttons only. Interface thread.
class overlay_dialog : public QDialog {
public:
    explicit overlay_dialog(QWidget* parent);

    // Where a screen reader starts: it reads the dialog around the button first. A focus proxy of
    // the dialog would have it say that both have the focus.
    void focus_default_button();

protected:
    bool focusNextPrevChild(bool next) override;

    // The frame fills the dialog; the contents go into this.
    QVBoxLayout* make_frame();
    // In the order of the tab key. One of them has to be made the default. `text` is UTF-8.
    QPushButton* make_button(const std::string& text, const char* name);

private:
    QList<QPushButton*> buttons_;
};

// Shows a dialog over the middle of the window's contents, which are dimmed, and serves it and
// nothing else until it is finished; the focus then returns to where it was. `make` is given the
// parent of the dialog, which is deleted afterwards; its result() is what is returned. Interface
// thread.
int run_over(QWidget* window, input_guard& guard,
             const std::function<overlay_dialog*(QWidget* parent)>& make);
