// Puts widgets where the window's plan has them.
#pragma once

#include <QLabel>
#include <QRect>
#include <QWidget>

// `where` counts pixels of the window; the widget's parents have their places already. Interface
// thread.
void place(QWidget* widget, const QRect& where);

// Gives an outlet its name.
template<class Widget> Widget* outlet(Widget* widget, const char* name) {
    widget->setObjectName(QLatin1String(name));
    return widget;
}

// A new widget of `parent` at its place; the parent owns it.
template<class Widget> Widget* make(QWidget* parent, const QRect& where) {
    auto* widget = new Widget(parent);
    place(widget, where);
    return widget;
}

// The same, as an outlet.
template<class Widget> Widget* make(QWidget* parent, const char* name, const QRect& where) {
    return outlet(make<Widget>(parent, where), name);
}

// Sets what the style looks at.
template<class Widget>
Widget* with_role(Widget* widget, const char* role, const char* tone = nullptr) {
    widget->setProperty("role", role);
    if (tone != nullptr) {
        widget->setProperty("tone", tone);
    }
    return widget;
}

// The same for what a layout measures before it is shown: with its font and border at once.
template<class Widget>
Widget* with_role_at_once(Widget* widget, const char* role, const char* tone = nullptr) {
    with_role(widget, role, tone)->ensurePolished();
    return widget;
}
