// Every write to an outlet of the window goes through here.
#pragma once

#include <string>
#include <vector>

class QAbstractButton;
class QStackedWidget;
class QString;
class QWidget;
class controller_box;
class level_indicator;
class tab_view;
class text_field;
class titled_box;

// Applies to the widget and, with a log attached, notes what was done under the outlet's name.
// Texts are UTF-8. Interface thread.
class outlet_writer {
public:
    // The log outlives its use; none ends the noting.
    void keep_log(std::vector<std::string>* log) { log_ = log; }

    void set_text(text_field* outlet, const std::string& text);
    void set_title(QAbstractButton* outlet, const std::string& text);
    void set_title(titled_box* outlet, const std::string& text);
    void set_label(tab_view* outlet, int index, const std::string& text);
    void set_enabled(QWidget* outlet, bool enabled);
    void set_hidden(QWidget* outlet, bool hidden);
    // A picture of the program by its name; an empty name removes it.
    void set_image(QAbstractButton* outlet, const std::string& name);
    void highlight(QAbstractButton* outlet, bool on);
    void set_level(level_indicator* outlet, double percent);
    void select(tab_view* outlet, int index);
    void select(QStackedWidget* outlet, int index);
    void needs_display(QWidget* outlet);

private:
    void note(const QWidget* outlet, const std::string& what);

    std::vector<std::string>* log_ = nullptr;
};
