#include "app/outlet_writer.h"

#include <QAbstractButton>
#include <QStackedWidget>

#include "app/level_indicator.h"
#include "app/pictures.h"
#include "app/plain_text.h"
#include "app/tab_view.h"
#include "app/text_field.h"
#include "app/titled_box.h"

void outlet_writer::set_text(text_field* outlet, const std::string& text) {
    outlet->set_value(one_line(text));
    note(outlet, "text \"" + text + "\"");
}

void outlet_writer::set_title(QAbstractButton* outlet, const std::string& text) {
    outlet->setText(button_text(text));
    outlet->setAccessibleName(one_line(text));
    note(outlet, "title \"" + text + "\"");
}

void outlet_writer::set_title(titled_box* outlet, const std::string& text) {
    outlet->set_title(one_line(text));
    note(outlet, "title \"" + text + "\"");
}

void outlet_writer::set_label(tab_view* outlet, int index, const std::string& text) {
    outlet->set_label(index, button_text(text));
    note(outlet, "label " + std::to_string(index) + " \"" + text + "\"");
}

void outlet_writer::set_enabled(QWidget* outlet, bool enabled) {
    outlet->setEnabled(enabled);
    note(outlet, enabled ? "enabled" : "disabled");
}

void outlet_writer::set_hidden(QWidget* outlet, bool hidden) {
    outlet->setHidden(hidden);
    note(outlet, hidden ? "hidden" : "shown");
}

void outlet_writer::set_image(QAbstractButton* outlet, const std::string& name) {
    outlet->setIcon(coloured_icon(QString::fromStdString(name)));
    note(outlet, name.empty() ? "image none" : "image " + name);
}

void outlet_writer::highlight(QAbstractButton* outlet, bool on) {
    outlet->setDown(on);
    note(outlet, on ? "highlight YES" : "highlight NO");
}

void outlet_writer::set_level(level_indicator* outlet, double percent) {
    outlet->set_level(percent);
    note(outlet, "level " + QString::number(percent, 'f', 1).toStdString());
}

void outlet_writer::select(tab_view* outlet, int index) {
    note(outlet, "selects " + std::to_string(index));
    outlet->selectTabViewItem(index);
}

void outlet_writer::select(QStackedWidget* outlet, int index) {
    outlet->setCurrentIndex(index);
    note(outlet, "selects " + std::to_string(index));
}

void outlet_writer::needs_display(QWidget* outlet) {
    outlet->update();
    note(outlet, "needs display");
}

void outlet_writer::note(const QWidget* outlet, const std::string& what) {
    if (log_ != nullptr) {
        log_->push_back(outlet->objectName().toStdString() + ": " + what);
    }
}
