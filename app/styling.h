// Changes of what a widget of the window looks like. Interface thread.
#pragma once

#include <QSize>

class QLabel;
class QString;
class QVariant;
class QWidget;

// Gives the widget a property that the style looks at, and applies the style anew.
void restyle(QWidget* widget, const char* property, const QVariant& value);

// Colours of texts: "ok", "warn", "err", "busy", "quiet", "faint", or none.
void set_tone(QWidget* widget, const char* tone);

// A picture of the program by its name, without an ending; one that is missing shows nothing.
void show_picture(QLabel* label, const QString& name, const QSize& size);
// The same, as faint as what is not there yet.
void show_faint_picture(QLabel* label, const QString& name, const QSize& size);
